#!/bin/bash
# Draws the program's pictures, whose sources are data/pictures/*.svg:
#
#   tools/draw_pictures.sh OUT_DIR
#
#   category-NN-SIZE.png, row-KEY-SIZE.png, title-NAME-SIZE.png, language-chosen-SIZE.png   16, 24, 32
#   toolbar-NN-SIZE.png                     24, 36, 48
#   logo-SIZE.png                           48, 72, 96 (the height)
#   quillvane.ico                           16, 20, 24, 32, 40, 48, 64, 256
#   search.gif, search-48.gif, search-64.gif
#
# The three sizes are those of 100, 150 and 200 %. The same sources give the same bytes. A bitmap
# newer than its source and this script is left as it is.
#
# Debian packages: librsvg2-bin (rsvg-convert), icoutils (icotool), imagemagick (convert).
set -euo pipefail

if [ $# -ne 1 ]; then
  echo "usage: tools/draw_pictures.sh OUT_DIR" >&2
  exit 2
fi
missing=()
for tool in rsvg-convert icotool convert; do
  command -v "$tool" >/dev/null || missing+=("$tool")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Missing: ${missing[*]}; apt-get install librsvg2-bin icoutils imagemagick" >&2
  exit 1
fi

script=$(realpath "$0")
sources=$(dirname "$script")/../data/pictures
mkdir -p "$1"
out=$(realpath "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$sources"

is_new() {  # is_new BITMAP SOURCE...
  local bitmap=$1 source
  shift
  for source in "$script" "$@"; do
    [ "$bitmap" -nt "$source" ] || return 1
  done
}

png_jobs() {  # png_jobs "SIZES" SVG...: source, height and bitmap of each PNG to draw, ended by NULs
  local sizes=$1 source size bitmap
  shift
  for source in "$@"; do
    for size in $sizes; do
      bitmap=$out/${source%.svg}-$size.png
      is_new "$bitmap" "$source" || printf '%s\0%s\0%s\0' "$source" "$size" "$bitmap"
    done
  done
}

draw_pngs() {
  {
    png_jobs "16 24 32" category-*.svg row-*.svg title-*.svg language-chosen.svg
    png_jobs "24 36 48" toolbar-*.svg
    png_jobs "48 72 96" logo.svg
  } | xargs -0 -r -n 3 -P "$(nproc)" bash -c \
    'rsvg-convert --height "$1" --output "$2.new" "$0" && mv "$2.new" "$2"'
}

# Below 32 pixels the disk would be a smudge: the small drawing has the feather alone.
draw_icon() {
  is_new "$out/quillvane.ico" quillvane.svg quillvane-small.svg && return
  local size
  for size in 16 20 24; do
    rsvg-convert --height "$size" --output "$work/icon-$size.png" quillvane-small.svg
  done
  for size in 32 40 48 64 256; do
    rsvg-convert --height "$size" --output "$work/icon-$size.png" quillvane.svg
  done
  icotool --create --output "$work/quillvane.ico" "$work"/icon-{16,20,24,32,40,48,64}.png \
    --raw="$work/icon-256.png"
  mv "$work/quillvane.ico" "$out/quillvane.ico"
}

# Where the lens stands in each frame, from its place in search.svg: once round, in about a second.
lens_places=(
  "5 0" "4.3 1.5" "2.5 2.6" "0 3" "-2.5 2.6" "-4.3 1.5"
  "-5 0" "-4.3 -1.5" "-2.5 -2.6" "0 -3" "2.5 -2.6" "4.3 -1.5"
)

# GIF knows no half-transparent pixels: one is either drawn in full or left out. One table of colours
# for all frames, with the transparent one as the background: some viewers fill it in between frames.
draw_animation() {  # draw_animation SIZE GIF
  local size=$1 gif=$2 frame
  is_new "$out/$gif" search.svg && return
  for frame in "${!lens_places[@]}"; do
    sed "s/translate(0 0)/translate(${lens_places[frame]})/" search.svg |
      rsvg-convert --height "$size" --output "$work/$(printf 'frame-%02d.png' "$frame")"
  done
  convert -dispose Background -delay 8 -loop 0 -background none "$work"/frame-*.png \
    -channel A -threshold 50% +channel +dither -colors 63 +map "$work/$gif"
  mv "$work/$gif" "$out/$gif"
}

draw_pngs
draw_icon
draw_animation 32 search.gif
draw_animation 48 search-48.gif
draw_animation 64 search-64.gif
