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
