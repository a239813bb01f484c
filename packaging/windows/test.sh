#!/usr/bin/env bash
# Cross-builds everything for Windows and runs every test under Wine. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    cat <<'TEXT'
Usage: packaging/windows/test.sh [CTEST OPTIONS…]

Builds the program and its tests for Windows into build/windows and runs the tests with ctest
under Wine, two at a time, in a virtual display. The kit is found as by build.sh, but not made.
TEXT
    exit
fi

. tools/dependencies.sh
. packaging/windows/kit.sh
if [ -z "${quivera_apart:-}" ]; then
    require $packages_build $packages_windows
    kit=$(find_windows_kit) || { echo "test.sh: no kit at hand; see packaging/windows/build.sh --help" >&2; exit 1; }
    cmake -S . -B build/windows -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O1 \
        -DCMAKE_TOOLCHAIN_FILE="$kit/mingw-toolchain.cmake"
    cmake --build build/windows
fi
run_apart "$0" "$@"

export WINEPREFIX=$PWD/build/wine WINEDEBUG=-all VELTO_DISCOVERY_INTERFACES=lo
[ -f "$WINEPREFIX/system.reg" ] || packaging/windows/kit/wine-prefix >/dev/null 2>&1
trap 'wineserver -k 2>/dev/null || true' EXIT
# A program that runs all the while: Wine's services are started once.
{ tail -f /dev/null | wine cmd; } >/dev/null 2>&1 </dev/null &
PATH=$PWD/packaging/windows/tested:$PATH
ctest --test-dir build/windows --output-on-failure -j2 "$@"
