#!/usr/bin/env bash
# Cross-builds the program for Windows and packs its installer. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

usage() {
    cat <<'TEXT'
Usage: packaging/windows/build.sh [--no-installer]

Cross-builds Quivera.exe and kelm-simulator.exe for Windows 10 and 11 (x86_64) on Debian 12,
installing what is missing (root or sudo), and makes

  build/windows-package/Quivera/                a folder that runs where it is copied to
  build/windows-package/Quivera-VERSION-Setup.exe   the installer

The kit of libraries for Windows is, in this order:

  $QUIVERA_WINDOWS_SDK                          a folder that holds it, when set
  ../shared/windows/windows-sdk.tar.xz          when that file is there
  build/windows-sdk/                            made from Debian's source packages by
                                                packaging/windows/build-kit.sh (about half an hour,
                                                once)

  --no-installer    only the folder

The installer takes /S (silent), /D=FOLDER (last, unquoted) and /NOFIREWALL (do not add the rule
that lets answers of units in).
TEXT
}

installer=yes
for argument in "$@"; do
    case $argument in
        --help | -h) usage; exit ;;
        --no-installer) installer= ;;
        *) echo "build.sh: unknown argument $argument; try --help" >&2; exit 2 ;;
    esac
done

. tools/dependencies.sh
. packaging/windows/kit.sh
. packaging/windows/deploy.sh
require $packages_build $packages_windows

if ! kit=$(find_windows_kit); then
    [ -z "${QUIVERA_WINDOWS_SDK:-}" ] || { echo "build.sh: no folder $QUIVERA_WINDOWS_SDK" >&2; exit 1; }
    packaging/windows/build-kit.sh build/windows-sdk
    kit=$(find_windows_kit)
fi
echo "Building with the kit in $kit"

build=$PWD/build/windows-release
package=$PWD/build/windows-package
cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF \
    -DCMAKE_TOOLCHAIN_FILE="$kit/mingw-toolchain.cmake"
cmake --build "$build" --target Quivera kelm-simulator

mkdir -p "$package"
deploy "$kit" "$build" "$package/Quivera"
echo "Folder: $package/Quivera ($(du -sm --apparent-size "$package/Quivera" | cut -f1) MB)"
[ -n "$installer" ] || exit 0

product=$build/packaging/windows/product.nsh
version=$(sed -n 's/^!define QUIVERA_VERSION "\(.*\)"/\1/p' "$product")
setup=$package/Quivera-$version-Setup.exe
uninstall_list "$package/Quivera" >"$package/uninstall-list.nsh"
makensis -V2 -WX -INPUTCHARSET UTF8 "-DPRODUCT=$product" "-DFOLDER=$package/Quivera" \
    "-DUNINSTALL_LIST=$package/uninstall-list.nsh" "-DOUTPUT=$setup" packaging/windows/installer.nsi
echo "Installer: $setup ($(du -k --apparent-size "$setup" | cut -f1) KB)"
