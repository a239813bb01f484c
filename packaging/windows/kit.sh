# Sourced where something is built for Windows: finds or makes the kit (Qt and the other libraries for
# x86_64-w64-mingw32, and the CMake toolchain file that uses them). Paths are relative to the repository's root.

# A kit that was handed to this machine, packed.
windows_kit_packed=../shared/windows/windows-sdk.tar.xz

# Tells the folder of the kit that is at hand, unpacking it when need be; fails when there is none.
find_windows_kit() {
    if [ -n "${QUIVERA_WINDOWS_SDK:-}" ]; then
        realpath -e "$QUIVERA_WINDOWS_SDK"
        return
    fi
    local made=$PWD/build/windows-sdk
    if [ -f "$windows_kit_packed" ] && [ "$windows_kit_packed" -nt "$made/mingw-toolchain.cmake" ]; then
        mkdir -p build
        # Under another name until it is whole. The date of unpacking, or it would be unpacked each time.
        rm -rf build/windows-sdk.part
        mkdir build/windows-sdk.part
        tar -xJmf "$windows_kit_packed" -C build/windows-sdk.part --strip-components=1 || return 1
        rm -rf "$made"
        mv build/windows-sdk.part "$made"
    fi
    [ -f "$made/mingw-toolchain.cmake" ] || return 1
    echo "$made"
}

# run_apart SCRIPT ARGUMENT…: starts the script that calls it anew in a virtual display and, where that is allowed, with
# a loopback interface that nobody else has.
run_apart() {
    [ -z "${quivera_apart:-}" ] || return 0
    export quivera_apart=yes
    local command=(xvfb-run -a -s '-screen 0 1280x1000x24 -nolisten tcp' "$@")
    if unshare -n true 2>/dev/null; then
        exec unshare -n bash -c 'ip link set lo up; exec "$@"' bash "${command[@]}"
    fi
    exec "${command[@]}"
}
