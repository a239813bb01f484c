#!/usr/bin/env bash
# Draws quivera.ico anew from the program's logo, in the sizes that Windows asks for. Needed only when the logo changes.
set -eu -o pipefail
cd "$(dirname "$0")"
if [ $# -gt 0 ]; then
    echo "Usage: $0 (draws quivera.ico from qml/images/logo.svg; needs librsvg2-bin and imagemagick)"
    [ "$1" = --help ] || [ "$1" = -h ]
    exit
fi

drawn=$(mktemp -d)
trap 'rm -rf "$drawn"' EXIT
sizes=()
for size in 16 20 24 32 40 48 64 128 256; do
    rsvg-convert -w "$size" -h "$size" ../../qml/images/logo.svg -o "$drawn/$size.png"
    sizes+=("$drawn/$size.png")
done
convert "${sizes[@]}" quivera.ico
