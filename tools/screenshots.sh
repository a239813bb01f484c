#!/usr/bin/env bash
# Pictures of every page, against simulated units. See --help.
set -eu -o pipefail
cd "$(dirname "$0")/.."

language=${LANGUAGE:-en}
scale=1
width=750
height=900
only='*'
output=
preset=dev

usage() {
    cat <<TEXT
Usage: tools/screenshots.sh [option...]

Builds the program's window over simulated units on this machine's loopback interface, walks through
every page and writes a picture of each. No display is needed and nothing is sent to another network.

  --language CODE   language of the texts, as in LANGUAGE (default: that variable, else en)
  --scale FACTOR    pixels for each point (default: 1)
  --width POINTS    of the window (default: 750)
  --height POINTS   of the window (default: 900)
  --only PATTERN    the walks to take, as of --gtest_filter (default: all)
  --output FOLDER   where the pictures go (default: docs/screenshots for English in the usual size,
                    else a folder under build/screenshots)
  --preset NAME     the preset to build with (default: dev)

The exit code is 0 only when every page was reached and every picture written.
TEXT
}

while [ $# -gt 0 ]; do
    case $1 in
    --help | -h) usage && exit ;;
    --language | --scale | --width | --height | --only | --output | --preset)
        [ $# -gt 1 ] || { echo "screenshots.sh: $1 needs a value; try --help" >&2 && exit 2; }
        declare "${1#--}=$2"
        shift 2
        ;;
    *) echo "screenshots.sh: unknown option $1; try --help" >&2 && exit 2 ;;
    esac
done

variant=$language-${width}x$height-$scale
if [ -z "$output" ]; then
    [ "$variant" = en-750x900-1 ] && output=docs/screenshots || output=build/screenshots/$variant
fi

. tools/dependencies.sh
require $packages_build $packages_run $packages_test

cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" --target screenshots
mkdir -p "$output"

export LANGUAGE=$language LANG=$language
unset LC_ALL LC_MESSAGES
export XDG_DATA_HOME=$PWD/build/screenshots/data
export QT_SCALE_FACTOR=$scale
export QT_QUICK_BACKEND=software
export VELTO_DISCOVERY_INTERFACES=lo
export SCREENSHOT_FOLDER=$output SCREENSHOT_WIDTH=$width SCREENSHOT_HEIGHT=$height

# Larger than the window, so that the pointer in its middle hovers over nothing.
side=$(awk "BEGIN { print 400 + int(2 * $scale * ($width > $height ? $width : $height)) }")
shown=$(mktemp)
Xvfb -displayfd 3 -screen 0 "${side}x${side}x24" -nolisten tcp 3>"$shown" 2>/dev/null &
display=$!
trap 'kill $display 2>/dev/null || true; rm -f "$shown"' EXIT
deadline=$((SECONDS + 20))
until [ -s "$shown" ]; do
    [ $SECONDS -lt $deadline ] || { echo "screenshots.sh: the virtual display did not start" >&2 && exit 1; }
    sleep 0.1
done
export DISPLAY=:$(cat "$shown") QT_QPA_PLATFORM=xcb
unset WAYLAND_DISPLAY

"build/$preset/tools/screenshots/screenshots" --gtest_brief=1 --gtest_filter="$only"
echo "$(find "$output" -name '*.png' | wc -l) pictures, $(du -sk "$output" | cut -f1) KiB: $output"
