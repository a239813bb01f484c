# Sourced by run.sh, test.sh and .ci/run: what each of them needs from Debian 12, installed when it is missing.

packages_build="build-essential cmake ninja-build ccache
  libssl-dev libboost-dev libboost-program-options-dev libspdlog-dev libfmt-dev libtinyxml2-dev rapidjson-dev
  qtbase5-dev qtdeclarative5-dev qtquickcontrols2-5-dev libqt5svg5-dev qttools5-dev-tools
  libgtest-dev libgmock-dev"
packages_run="qml-module-qtquick2 qml-module-qtquick-window2 qml-module-qtquick-layouts qml-module-qtquick-controls2
  qml-module-qtquick-templates2 libqt5svg5 libgl1-mesa-dri
  xvfb xauth imagemagick"
packages_test="qml-module-qttest procps"
packages_check="git clang clang-format clang-tidy libclang-rt-14-dev qtdeclarative5-dev-tools libbenchmark-dev"
packages_deb="file librsvg2-bin desktop-file-utils appstream lintian"
packages_deb_check="debootstrap util-linux iproute2 xvfb imagemagick"
packages_windows="g++-mingw-w64-x86-64-posix gcc-mingw-w64-x86-64-posix mingw-w64-x86-64-dev googletest
  wine wine64 fonts-wine fonts-liberation2 xvfb xauth nsis xz-utils iproute2"
packages_windows_kit="dpkg-dev perl python3"
packages_windows_check="xdotool imagemagick python3 file"

# require PACKAGE…: installs those that are missing; needs root (or sudo) only then.
require() {
    local missing=() package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    command -v apt-get >/dev/null || { echo "Install these first: ${missing[*]}" >&2; return 1; }
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || { echo "Run as root, or install these first: ${missing[*]}" >&2; return 1; }
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get update -qq
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}" >/dev/null
}
