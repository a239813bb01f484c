#!/usr/bin/env bash
# The program against three simulated units. See --help.
set -eu -o pipefail
cd "$(dirname "$0")"

units=3
patience=60 # seconds for the rows to appear
screenshot=build/screenshot.png

if [ "${1:-}" = --help ] || [ "${1:-}" = -h ]; then
    cat <<TEXT
Usage: ./run.sh

Installs what is missing (Debian 12, root or sudo), builds the program, starts three simulated
units on this machine's loopback interface (a KELM, a Quivera Hub, and a Ruvello that is waiting
to be set up) and opens the program, which finds them there. Nothing is sent to another network.
Closing the window ends the units too.

Without a display the program is shown to a virtual one (Xvfb); once all units are listed and
read, a picture of the window is written to $screenshot and everything ends. The exit code is
then 0; it is 1, with the reason, when the units do not appear within $patience s.

The program's log is in build/run/Orvex/QuiveraApp/QuiveraApp.log.
Like every start of the program, this ends a copy of it that is already running.
TEXT
    exit 0
fi
if [ $# -gt 0 ]; then
    echo "run.sh: unknown option $1; try --help" >&2
    exit 2
fi

. tools/dependencies.sh
require $packages_build $packages_run

cmake --preset release >/dev/null
cmake --build --preset release --target Quivera kelm-simulator

# A data folder of its own, so that this run's log is not mixed with another's.
rm -rf build/run
mkdir -p build/run
export XDG_DATA_HOME=$PWD/build/run
log=build/run/Orvex/QuiveraApp/QuiveraApp.log
simulator_log=build/run/simulator.log
export VELTO_DISCOVERY_INTERFACES=lo

started=()
finish() {
    for process in "${started[@]}"; do kill "$process" 2>/dev/null || true; done
    wait 2>/dev/null || true
}
trap finish EXIT
trap 'exit 130' INT TERM

fail() {
    echo "run.sh: $1" >&2
    [ -s "${2:-}" ] && tail -n 20 "$2" >&2
    exit 1
}

# wait_for FILE PATTERN COUNT SECONDS PROCESS: until that many lines match; fails early when the process ends.
wait_for() {
    local deadline=$((SECONDS + $4)) matching
    until matching=$(grep -cE "$2" "$1" 2>/dev/null) && [ "$matching" -ge "$3" ]; do
        kill -0 "$5" 2>/dev/null || return 1
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.2
    done
}

build/release/simulator/kelm-simulator --scenario tools/three-units.json >"$simulator_log" 2>&1 &
simulator=$!
started+=("$simulator")
wait_for "$simulator_log" '^all units ready' 1 20 "$simulator" ||
    fail "the simulated units did not start:" "$simulator_log"
cat "$simulator_log"

if [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; then
    echo "Opening the program; close its window to end."
    build/release/app/Quivera
    exit
fi

Xvfb -displayfd 3 -screen 0 1000x1000x24 -nolisten tcp 3>build/run/display 2>build/run/xvfb.log &
started+=($!)
deadline=$((SECONDS + 20))
until [ -s build/run/display ]; do
    [ $SECONDS -lt $deadline ] || fail "the virtual display did not start:" build/run/xvfb.log
    sleep 0.1
done
export DISPLAY=:$(cat build/run/display)

build/release/app/Quivera &
program=$!
started+=("$program")
wait_for "$log" 'DeviceInfoManager: .* read, network' "$units" "$patience" "$program" ||
    fail "not all $units units were listed within $patience s. The end of the log:" "$log"
grep -E 'DeviceInfoManager: .* (listed|read)' "$log"

sleep 3 # the splash goes after 2.5 s
import -window root "$screenshot"
kill -TERM "$program"
wait "$program" || fail "the program did not end as it should:" "$log"
echo "All $units units are listed. Picture: $PWD/$screenshot"
