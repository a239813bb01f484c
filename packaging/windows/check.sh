#!/usr/bin/env bash
# Installs, uses and uninstalls the program under Wine. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/../.."

if [ $# -gt 0 ]; then
    cat <<'TEXT'
Usage: packaging/windows/check.sh

Takes the installer that packaging/windows/build.sh has made through a person's day, under Wine
and in a virtual display: silent install into a folder with blanks and letters of other
alphabets, start against simulated units, a unit opened, a setting changed and read back, a
second copy, a companion, the end of the session, a crash, an upgrade, and an uninstall that must
leave nothing. Pictures and figures go to build/windows-check. Nothing leaves this machine.
TEXT
    [ "$1" = --help ] || [ "$1" = -h ]
    exit
fi

. tools/dependencies.sh
. packaging/windows/kit.sh
require $packages_windows $packages_windows_check

run_apart "$0"

out=$PWD/build/windows-check
rm -rf "$out"
mkdir -p "$out"
export WINEPREFIX=$out/wine WINEARCH=win64 WINEDEBUG=-all LC_ALL=C.UTF-8 VELTO_DISCOVERY_INTERFACES=lo
# A debugger would wait for somebody to close it; the firewall's tool is a recorder here.
export WINEDLLOVERRIDES='mscoree,mshtml=;winedbg.exe=d;netsh.exe=n'
export WINEQT_FORCE_STDERR_LOGGING=1

setup=$(find build/windows-package -maxdepth 1 -name "Quivera-*-Setup.exe" 2>/dev/null | tail -n 1)
[ -n "$setup" ] || { echo "check.sh: there is no installer; run packaging/windows/build.sh first" >&2; exit 1; }
installed='C:\Program Files\Orvex\Quivera für 席'
drive=$WINEPREFIX/drive_c
folder="$drive/Program Files/Orvex/Quivera für 席"
profile="$drive/users/Zoë 席"
data="$profile/AppData/Local/Orvex/QuiveraApp"
log=$data/QuiveraApp.log
uninstall_key='HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall\Quivera'
shortcut="$drive/ProgramData/Microsoft/Windows/Start Menu/Programs/Quivera.lnk"

finish() {
    wineserver -k 2>/dev/null || true
    wait 2>/dev/null || true
}
trap finish EXIT

fail() {
    echo "check.sh: FAILED: $*" >&2
    import -window root "$out/failed.png" || true
    [ ! -f "$log" ] || tail -n 15 "$log" >&2
    exit 1
}
passed() { echo "check.sh: $*"; }

# until_true SECONDS WHAT COMMAND…: waits for something that comes about by itself.
until_true() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        [ $SECONDS -lt $deadline ] || fail "$what"
        sleep 0.2
    done
}

log_has() { [ -f "$log" ] && [ "$(grep -cE "$1" "$log" || true)" -ge "${2:-1}" ]; }
is_gone() { ! kill -0 "$1" 2>/dev/null; }
is_there() { [ -e "$1" ]; }
is_missing() { [ ! -e "$1" ]; }
window_of() { xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1; }
has_window() { [ -n "$(window_of "$1")" ]; }
has_no_window() { ! has_window "$1"; }
answer() { packaging/windows/check/ask-unit.py 12740 "$1"; }
answers() { [[ $(answer "$1") == *"$2"* ]]; }
registry_has() { wine reg query "$@" >/dev/null 2>&1; }
# At a place of the display: the window comes up in its corner, below the title bar that Wine draws.
click() { xdotool mousemove --sync "$1" "$2" click 1; }
picture() { import -window root "$out/$1.png"; }

program=
start_program() {
    wine "$installed\\Quivera.exe" >>"$out/program.txt" 2>&1 &
    program=$!
}
splash_goes() { sleep 3.5; } # 2.5 s, and a second to fade

# What is on the drive and not of Wine's own making while it runs.
listing() { (cd "$drive" && find . -not -path './users/*/Temp*' -not -path './windows/*' | LC_ALL=C sort); }

echo "check.sh: preparing Wine"
packaging/windows/kit/wine-prefix >"$out/wine.txt" 2>&1
x86_64-w64-mingw32-g++-posix -std=c++17 -O1 -static -municode packaging/windows/check/CheckTool.cpp -o "$out/tool.exe"
cp "$out/tool.exe" "$drive/windows/system32/netsh.exe"
# A user whose name no old code page has.
for key in 'User Shell Folders' 'Shell Folders'; do
    wine reg add "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\$key" /v 'Local AppData' \
        /d 'C:\users\Zoë 席\AppData\Local' /f >/dev/null 2>&1
done
mkdir -p "$profile/AppData/Local" "$drive/Companions für 席"
cp "$out/tool.exe" "$drive/Companions für 席/QuiveraBgApp.exe"
wine reg add 'HKLM\SOFTWARE\Orvex\QuiveraBgApp' /v InstallPath /d 'C:\Companions für 席\QuiveraBgApp.exe' /f \
    >/dev/null 2>&1
wineserver --wait
listing >"$out/before.txt"

# In words, as an argument with blanks would be put in quotation marks, which NSIS does not take here.
# shellcheck disable=SC2086
wine "$setup" /S /D=$installed || fail "the installer ended with $?"
for file in Quivera.exe kelm-simulator.exe QuiveraApp.log.config platforms/qwindows.dll licenses/LICENSE.txt \
    uninstall.exe; do
    [ -f "$folder/$file" ] || fail "$file was not installed"
done
[ -f "$shortcut" ] || fail "no entry in the start menu"
registry_has "$uninstall_key" /v UninstallString || fail "no entry among the installed programs"
grep -qF "add rule" "$drive/netsh.txt" && grep -qF "program=\"$installed\\Quivera.exe\"" "$drive/netsh.txt" ||
    fail "no firewall rule was asked for: $(cat "$drive/netsh.txt")"
passed "installed silently, $(du -sm --apparent-size "$folder" | cut -f1) MB; the firewall rule was asked for"

wine "$installed\\kelm-simulator.exe" --units 2 --name 'Living Room' >"$out/simulator.txt" 2>&1 &
until_true 30 "the simulated units did not start" grep -qs '^all units ready' "$out/simulator.txt"
start_program
until_true 60 "the units are not listed" log_has 'DeviceInfoManager: .* read, network' 2
[ "$(file -b "$folder/Quivera.exe" | grep -c GUI)" -eq 1 ] || fail "the program opens a console"
splash_goes
picture list
passed "started, both units are listed"

until_true 20 "the background companion was not started" is_there "$drive/Companions für 席/QuiveraBgApp.exe.started"
passed "the companion that the registry names was started"

click 375 165
until_true 30 "no unit was opened" log_has 'pageMain040DeviceInfo'
until_true 30 "the unit does not answer" answers GetAutomaticVolumeControl enabled
sleep 3 # its values come in, page by page of the protocol
before=$(answer GetAutomaticVolumeControl)
picture unit-before
click 679 689
changed() { [ "$(answer GetAutomaticVolumeControl)" != "$before" ]; }
until_true 20 "the setting did not reach the unit" changed
sleep 2
picture unit-after
passed "a unit was opened and a setting changed: $before, then $(answer GetAutomaticVolumeControl)"

echo "check.sh: resident $(awk '/VmRSS/ { print int($2 / 1024) }' "/proc/$program/status") MB with OpenGL"
first=$program
start_program
until_true 30 "the second copy left the first alone" is_gone "$first"
until_true 30 "the second copy does not list the units" log_has 'DeviceInfoManager: .* read, network' 4
first=$program
export WINEQT_QUICK_BACKEND=software
start_program
unset WINEQT_QUICK_BACKEND
until_true 30 "the third copy left the second alone" is_gone "$first"
until_true 60 "the units are not listed by the third copy" log_has 'DeviceInfoManager: .* read, network' 6
splash_goes
picture list-software
click 375 165
until_true 30 "no unit was opened" log_has 'pageMain040DeviceInfo' 2
sleep 3
picture unit-software
echo "check.sh: resident $(awk '/VmRSS/ { print int($2 / 1024) }' "/proc/$program/status") MB without OpenGL"
passed "each copy ended the one before"

# As Windows does, this ends the process as soon as its windows have answered.
wine wineboot --end-session || fail "the session's end was held up"
until_true 10 "the program did not end with the session" is_gone "$program"
log_has 'QuiveraApp .* ended' || fail "the session's end cut the program short"
passed "it ended in order when the session did"

mkfifo "$out/holding"
wine "$out/tool.exe" hold "C:\\users\\Zoë 席\\AppData\\Local\\Orvex\\QuiveraApp\\QuiveraApp.log" <"$out/holding" \
    >"$out/held.txt" 2>&1 &
exec 9>"$out/holding"
until_true 20 "the log could not be held" grep -qs held "$out/held.txt"
start_program
until_true 60 "it does not start while another program holds its log" has_window '^Orvex Quivera$'
until_true 20 "nothing tells that the log is held" grep -q 'sink 2 is left out' "$out/program.txt"
exec 9>&-
passed "it runs while another program holds its log, and tells so"

wine "$out/tool.exe" crash Quivera.exe || fail "it could not be made to crash"
until_true 30 "no notice of the crash" has_window '^Orvex$'
sleep 1
picture crash
reports=("$data"/QuiveraApp-crash-*.txt)
grep -q 'Cause: exception 0xc0000005' "${reports[0]}" || fail "no report of the crash"
xdotool key --window "$(window_of '^Orvex$')" Return
until_true 30 "it does not end after the notice" is_gone "$program"
cp "${reports[0]}" "$out/crash.txt"
passed "the crash was recorded, told, and ended it"

start_program
until_true 60 "it does not start again" has_window '^Orvex Quivera$'
: >"$drive/netsh.txt"
wine "$setup" /S || fail "the upgrade ended with $?"
is_gone "$program" || fail "the upgrade left the program running"
[ -f "$folder/Quivera.exe" ] && [ -f "$folder/uninstall.exe" ] && [ -f "$shortcut" ] && [ -f "$log" ] ||
    fail "the upgrade lost something"
[ "$(grep -oE '(add|delete) rule' "$drive/netsh.txt" | xargs)" = "delete rule add rule" ] ||
    fail "the upgrade did not renew the rule: $(cat "$drive/netsh.txt")"
passed "upgraded in place while it ran"

wine "$installed\\uninstall.exe" /S
until_true 60 "the uninstaller does not end" is_missing "$folder"
wineserver --wait & waiting=$!
until_true 30 "something of it still runs" is_gone "$waiting"
tail -n 1 "$drive/netsh.txt" | grep -q 'delete rule' || fail "the firewall rule stays"
rm "$drive/netsh.txt" "$drive/Companions für 席/QuiveraBgApp.exe.started"
listing >"$out/after.txt"
diff "$out/before.txt" "$out/after.txt" || fail "files stay behind"
if registry_has "$uninstall_key"; then fail "the entry among the installed programs stays"; fi
wineserver --wait
grep -i 'quivera' "$WINEPREFIX"/*.reg | grep -vi 'bgapp' && fail "something stays in the registry"
passed "uninstalled, nothing stays"
passed "all passed. Look at the pictures in $out"
