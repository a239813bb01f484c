#!/usr/bin/env bash
# Builds everything and runs every test. See --help.
set -eu -o pipefail
cd "$(dirname "$0")"

if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    cat <<'TEXT'
Usage: ./test.sh [PRESET [CTEST OPTIONS…]]

Installs what is missing (Debian 12, root or sudo), builds everything with the preset
(release, dev, asan or tsan; default release) and runs the tests with ctest.

  ./test.sh                     every test, as users get the program
  ./test.sh asan                the same under the address and undefined-behaviour sanitizers
  ./test.sh tsan -L 'velto|e2e' some of them under the thread sanitizer
TEXT
    exit 0
fi

preset=${1:-release}
[ $# -gt 0 ] && shift

. tools/dependencies.sh
# Word splitting wanted: each is a list.
require $packages_build $packages_run $packages_test

cmake --preset "$preset"
cmake --build --preset "$preset"
ctest --preset "$preset" -j2 "$@"
