#!/usr/bin/env bash
# The Debian package. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

folder=build/package

if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    cat <<TEXT
Usage: packaging/linux/build.sh [--check]

Installs what is missing (Debian 12, root or sudo), builds the program and the simulator as users get
them, makes a Debian package of both and looks at it with desktop-file-validate, appstreamcli and
lintian; what one of them finds fault with is a fault of this script. The package is in
$folder/quivera_VERSION_ARCHITECTURE.deb; nothing is installed from it.

  --check    then install, run and remove it in a fresh Debian, see packaging/linux/check.sh --help

DEBFULLNAME and DEBEMAIL, when both are set, say who makes the package.
TEXT
    exit 0
fi
check=false
if [ "${1:-}" = --check ]; then
    check=true
    shift
fi
if [ $# -gt 0 ]; then
    echo "build.sh: unknown option $1; try --help" >&2
    exit 2
fi

. tools/dependencies.sh
# Word splitting wanted: each is a list.
require $packages_build $packages_run $packages_deb

# Times inside the package, and of the resources in the program, are those of the version, so that the same sources make
# the same package.
date=$(sed -n 's/^set(QUIVERA_VERSION_DATE \(.*\))$/\1/p' cmake/Product.cmake)
export SOURCE_DATE_EPOCH QT_RCC_SOURCE_DATE_OVERRIDE
SOURCE_DATE_EPOCH=$(date -u -d "$date" +%s)
QT_RCC_SOURCE_DATE_OVERRIDE=$SOURCE_DATE_EPOCH

maintainer=
[ -n "${DEBFULLNAME:-}" ] && [ -n "${DEBEMAIL:-}" ] && maintainer="$DEBFULLNAME <$DEBEMAIL>"

# Debian's own flags: hardened, and no path of this machine in what is built.
export DEB_BUILD_MAINT_OPTIONS='hardening=+all reproducible=+fixfilepath' DEB_CXXFLAGS_MAINT_STRIP='-g'
flags=$(dpkg-buildflags --get CXXFLAGS)
definitions=$(dpkg-buildflags --get CPPFLAGS)
linking=$(dpkg-buildflags --get LDFLAGS)
cmake -S . -B "$folder" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr -DBUILD_TESTING=OFF \
    -DQUIVERA_BUILD_PACKAGE=ON -DQUIVERA_MAINTAINER="$maintainer" \
    -DCMAKE_CXX_FLAGS="$flags $definitions" -DCMAKE_EXE_LINKER_FLAGS="$linking" >/dev/null
cmake --build "$folder"

rm -f "$folder"/*.deb
cpack --config "$folder/CPackConfig.cmake" >"$folder/cpack.log" 2>&1 || { cat "$folder/cpack.log" >&2 && exit 1; }
package=$(echo "$folder"/*.deb)

desktop-file-validate "$folder"/packaging/linux/*.desktop
appstreamcli validate --no-net "$folder"/packaging/linux/*.metainfo.xml
# The first entry of a changelog closes a bug only in Debian's own archive.
lintian --allow-root --fail-on error,warning --suppress-tags initial-upload-closes-no-bugs "$package"
dpkg-deb --field "$package" Package Version Installed-Size Depends
echo "$package: $(du -k "$package" | cut -f1) KiB"
! $check || packaging/linux/check.sh "$package"
