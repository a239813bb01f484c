# Sourced by build.sh: makes a folder that runs on a Windows machine where nothing else is installed.

# Libraries that every Windows machine has are known by mingw's import libraries; the compiler's own are not among them.
is_system_library() {
    local name
    name=$(tr '[:upper:]' '[:lower:]' <<<"${1%.*}")
    [ -f "/usr/x86_64-w64-mingw32/lib/lib$name.a" ] && [[ $name != libwinpthread* ]] ||
        [ "${1,,}" = winspool.drv ]
}

libraries_of() {
    x86_64-w64-mingw32-objdump -p "$1" | sed -n 's/^\s*DLL Name: //p'
}

# copy_libraries KIT FOLDER: until nothing that lies in FOLDER needs a library that does not.
copy_libraries() {
    local kit=$1 folder=$2 file needed found added=1
    while [ "$added" -gt 0 ]; do
        added=0
        while read -r needed; do
            if [ -f "$folder/$needed" ] || is_system_library "$needed"; then continue; fi
            found=$(find "$kit/qt/bin" "$kit/bin" -maxdepth 1 -iname "$needed" -print -quit)
            if [ -z "$found" ]; then
                echo "build.sh: $needed is needed and is neither in the kit nor part of Windows" >&2
                return 1
            fi
            cp "$found" "$folder/"
            added=$((added + 1))
        done < <(find "$folder" \( -name '*.dll' -o -name '*.exe' \) -print0 |
            while read -r -d '' file; do libraries_of "$file"; done | sort -u)
    done
}

# copy_qml_modules KIT FOLDER: those that the program's documents import, and the style that it chooses at run time.
copy_qml_modules() {
    local kit=$1 folder=$2 module
    while read -r module; do
        mkdir -p "$folder/$module"
        find "$kit/qt/qml/$module" -maxdepth 1 -type f ! -name '*.qmltypes' -exec cp {} "$folder/$module/" \;
    done < <("$kit/qt-host/bin/qmlimportscanner" -rootPath qml -importPath "$kit/qt/qml" |
        sed -n 's/^ *"relativePath": "\(.*\)",\?$/\1/p' | sort -u)
    # The templates that styles are drawn by, and what a style's own documents import.
    for module in QtQuick/Templates.2 QtQuick/Window.2 QtQuick/Controls.2/Material; do
        mkdir -p "$folder/$module"
        cp -r "$kit/qt/qml/$module/." "$folder/$module/"
    done
    find "$folder" -name '*.qmltypes' -delete
}

# deploy KIT BUILD FOLDER
deploy() {
    local kit=$1 build=$2 folder=$3 plugin text
    rm -rf "$folder"
    mkdir -p "$folder/licenses"
    cp "$build/app/Quivera.exe" "$build/simulator/kelm-simulator.exe" app/QuiveraApp.log.config "$folder/"
    for plugin in platforms/qwindows imageformats/qsvg iconengines/qsvgicon styles/qwindowsvistastyle; do
        mkdir -p "$folder/${plugin%/*}"
        cp "$kit/qt/plugins/$plugin.dll" "$folder/${plugin%/*}/"
    done
    printf '[Paths]\r\nPrefix=.\r\nPlugins=.\r\nQml2Imports=.\r\n' >"$folder/qt.conf"
    copy_qml_modules "$kit" "$folder"
    copy_libraries "$kit" "$folder"
    # The names of the functions stay in the build folder's copy, for the addresses in a crash report.
    x86_64-w64-mingw32-strip "$folder"/*.exe "$folder"/*.dll

    sed 's/$/\r/' LICENSE >"$folder/licenses/LICENSE.txt"
    cp "$build/packaging/windows/THIRD-PARTY.txt" "$folder/licenses/"
    while read -r text; do
        sed 's/\r*$/\r/' "packaging/licenses/$text" >"$folder/licenses/$text"
    done <"$build/packaging/windows/license-texts.txt"
}

# uninstall_list FOLDER: NSIS lines that take away exactly what the folder holds, innermost folders first.
uninstall_list() {
    (
        cd "$1"
        find . -type f -printf '%P\n' | LC_ALL=C sort | sed 's#/#\\#g; s#.*#Delete "$INSTDIR\\&"#'
        find . -mindepth 1 -type d -printf '%P\n' | LC_ALL=C sort -r | sed 's#/#\\#g; s#.*#RMDir "$INSTDIR\\&"#'
    )
}
