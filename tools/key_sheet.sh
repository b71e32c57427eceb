#!/usr/bin/env bash
# Portraits as they come out of the shipped settings over a light, a dark and a busy background, on one sheet to look
# at: tools/key_sheet.sh OUT.png BUSY_BACKGROUND PORTRAIT... (a portrait whose name says "blue" is before a blue screen)
set -euo pipefail

if [ $# -lt 3 ]; then
    echo "usage: tools/key_sheet.sh OUT.png BUSY_BACKGROUND PORTRAIT..." >&2
    exit 2
fi
out=$1 busy=$2
shift 2
bin=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)/build/release/bin
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

# PNG files of one pixel, white and nearly black: a background of one colour is as good as any of its size.
echo iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAAAAAA6fptVAAAACklEQVR42mP4DwABAQEAHLCMmQAAAABJRU5ErkJggg== | base64 -d > "$folder/light.png"
echo iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAAAAAA6fptVAAAACklEQVR42mOQAAAAGgAZgACOuwAAAABJRU5ErkJggg== | base64 -d > "$folder/dark.png"

pictures=()
for portrait in "$@"; do
    name=$(basename "${portrait%.*}")
    blue=0
    case $name in *blue*) blue=1 ;; esac
    for background in "light:$folder/light.png" "dark:$folder/dark.png" "busy:$busy"; do
        picture=$folder/$name-${background%%:*}.jpg
        "$bin/tavrin-cli" render --foreground "$portrait" --background "${background#*:}" --inches 10x10 --dpi 100 \
            --set "bUseBlueLogic=$blue" --out "$picture" > "$folder/log" 2>&1 || { cat "$folder/log" >&2; exit 1; }
        pictures+=("$picture")
    done
done
"$bin/picture_sheet" "$out" 6 "${pictures[@]}"
