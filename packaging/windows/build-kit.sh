#!/usr/bin/env bash
# Makes the kit that the program is built with for Windows, from Debian's own source packages. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

if [ $# -ne 1 ] || [ "$1" = --help ] || [ "$1" = -h ]; then
    cat <<'TEXT'
Usage: packaging/windows/build-kit.sh FOLDER

Cross-builds Qt 5.15, OpenSSL 3, Boost.Program_options and TinyXML-2 for x86_64-w64-mingw32 on
Debian 12 from Debian's source packages, and puts them into FOLDER with the headers of Boost,
spdlog, fmt and RapidJSON, Qt's tools for this machine, and a CMake toolchain file that uses
them all. FOLDER can be moved afterwards. Takes about half an hour on two cores, beside
FOLDER (in FOLDER.work, which goes at the end). Needs root or sudo for what is missing.
TEXT
    [ $# -eq 1 ] && [[ $1 = -* ]]
    exit
fi

. tools/dependencies.sh
kit=$(realpath -m "$1")
work=$kit.work
sources=$work/sources
target=x86_64-w64-mingw32
jobs=$(nproc)
here=$PWD/packaging/windows

require $packages_build $packages_windows $packages_windows_kit
rm -rf "$kit"
mkdir -p "$sources" "$work/logs" "$kit"/{bin,include,lib}

say() { echo "build-kit.sh: $*"; }

# quietly NAME COMMAND…: what it prints is only of interest when it fails.
quietly() {
    local name=$1 status
    shift
    # Not as a condition: inside one the shell would not stop at the first error.
    set +e
    (set -e; "$@") >"$work/logs/$name.log" 2>&1
    status=$?
    set -e
    [ "$status" -ne 0 ] || return 0
    tail -n 40 "$work/logs/$name.log" >&2
    say "$name failed; all it said is in $work/logs/$name.log" >&2
    return 1
}

# The machine's package lists may leave sources out: a list of our own, from the same mirror, kept apart.
fetch_sources() {
    local mirror lists=$work/apt package
    mirror=$(apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' | grep -m1 '/debian/*$' || true)
    [ -n "$mirror" ] || mirror=http://deb.debian.org/debian
    mkdir -p "$lists/lists/partial"
    echo "deb-src $mirror bookworm main" >"$lists/sources.list"
    local apt=(apt-get -o "Dir::Etc::SourceList=$lists/sources.list" -o Dir::Etc::SourceParts=/dev/null
        -o "Dir::State::Lists=$lists/lists" -o APT::Sandbox::User=root)
    cd "$sources"
    "${apt[@]}" update
    for package in qtbase-opensource-src qtdeclarative-opensource-src qtsvg-opensource-src \
        qtquickcontrols2-opensource-src openssl boost1.74 tinyxml2 spdlog fmtlib rapidjson; do
        [ -n "$(folder_of "$package")" ] || "${apt[@]}" source "$package"
    done
}

folder_of() { find "$sources" -mindepth 1 -maxdepth 1 -type d -name "$1-*" -print -quit; }

build_qtbase() {
    local source
    source=$(folder_of qtbase-opensource-src)
    # Library names with capitals are found on Windows only.
    sed -i 's/-lSecur32/-lsecur32/g; s/-lCrypt32/-lcrypt32/g' "$source/src/network/ssl/ssl.pri"
    mkdir -p "$work/qtbase"
    cd "$work/qtbase"
    # Debian's source leaves SQLite and the tablets' interface out. Text shaping, images and the like come along, so
    # that nothing else has to be shipped; TLS of Qt's own is not used and takes the system's.
    "$source/configure" -opensource -confirm-license -release -shared -silent \
        -xplatform win32-g++ -device-option "CROSS_COMPILE=$target-" \
        -prefix "$kit/qt" -extprefix "$kit/qt" -hostprefix "$kit/qt-host" \
        -opengl desktop -no-direct2d -schannel -no-openssl -no-icu -no-dbus \
        -no-feature-sql -no-feature-tabletevent \
        -qt-zlib -qt-libpng -qt-libjpeg -qt-freetype -qt-harfbuzz -qt-pcre -qt-doubleconversion \
        -nomake tests -nomake examples -no-compile-examples
    make -j"$jobs"
    make install
}

# build_qt_module PACKAGE CONFIGURE OPTIONS…
build_qt_module() {
    local source
    source=$(folder_of "$1")
    mkdir -p "$work/$1"
    cd "$work/$1"
    shift
    "$kit/qt-host/bin/qmake" "$source" ${1:+-- "$@"}
    make -j"$jobs"
    make install
}

build_openssl() {
    mkdir -p "$work/openssl"
    cd "$work/openssl"
    "$(folder_of openssl)/Configure" mingw64 "--cross-compile-prefix=$target-" "--prefix=$kit" --libdir=lib \
        no-shared no-tests no-legacy
    make -j"$jobs" build_libs
    make install_dev
}

# archive NAME SOURCE… : compiled into lib/libNAME.a
archive() {
    local name=$1 objects=$work/$1-objects source
    shift
    mkdir -p "$objects"
    cd "$objects"
    for source in "$@"; do
        "$target-g++-posix" -std=c++17 -O2 -DBOOST_ALL_NO_LIB -I"$kit/include" -c "$source"
    done
    "$target-ar" rcs "$kit/lib/lib$name.a" ./*.o
}

build_small_libraries() {
    # Boost's headers are the same for every system; only this one library of it is compiled.
    cp -r /usr/include/boost "$kit/include/"
    cp "$(folder_of tinyxml2)/tinyxml2.h" "$kit/include/"
    cp -r "$(folder_of spdlog)/include/spdlog" "$(folder_of fmtlib)/include/fmt" \
        "$(folder_of rapidjson)/include/rapidjson" "$kit/include/"
    archive boost_program_options "$(folder_of boost1.74)"/libs/program_options/src/*.cpp
    archive tinyxml2 "$(folder_of tinyxml2)/tinyxml2.cpp"
    local library
    for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
        cp "$("$target-g++-posix" "-print-file-name=$library")" "$kit/bin/"
    done
}

# So that the folder can be moved: Qt's CMake files find the tools for this machine from where they lie themselves, and
# nothing else of it names a path.
finish() {
    cd "$kit/qt/lib/cmake"
    grep -rlF "$kit/qt-host/bin/" . |
        xargs sed -i "s#$kit/qt-host/bin/#\${CMAKE_CURRENT_LIST_DIR}/../../../../qt-host/bin/#g"
    cd "$kit"
    rm -rf qt/doc qt/lib/pkgconfig lib/pkgconfig
    find . \( -name '*.prl' -o -name '*.la' \) -delete
    find qt -name '*.pri' -delete
    find qt-host/bin -type f -exec sh -c 'strip "$1" 2>/dev/null || true' _ {} \;
    find qt -name '*.dll' -exec "$target-strip" --strip-unneeded {} \;
    install -m 755 "$here/kit/wine-run" "$here/kit/wine-prefix" bin/
    # Last: a kit without it is not whole.
    cp "$here/kit/mingw-toolchain.cmake" ./
}

say "fetching the sources"
quietly sources fetch_sources
say "building Qt (the longest part)"
quietly qtbase build_qtbase
quietly qtdeclarative build_qt_module qtdeclarative-opensource-src -no-feature-qml-profiler -no-feature-qml-preview \
    -no-feature-quick-designer -no-feature-d3d12
quietly qtsvg build_qt_module qtsvg-opensource-src
quietly qtquickcontrols2 build_qt_module qtquickcontrols2-opensource-src -no-feature-quickcontrols2-fusion \
    -no-feature-quickcontrols2-imagine -no-feature-quickcontrols2-universal
say "building OpenSSL"
quietly openssl build_openssl
say "building the small libraries"
quietly libraries build_small_libraries
quietly finish finish
rm -rf "$work"
say "the kit is in $kit"
