#!/bin/sh
# Draws all icon sets and the bitmaps for the resolution libraries in one go, which takes a second:
# draw.sh SETS BITMAPS SYMBOL...
# Writes SETS/<set>/<size>/<symbol>.png and, of the first set, BITMAPS/<size>/<symbol>.bmp.
set -eu
here=$(dirname "$0")
. "$here/../art/bitmap.sh"
sets=$1 bitmaps=$2
shift 2
symbols=$*

# draw_set NAME [OPTION...]: the same drawings in every set, with options of rsvg-convert.
draw_set() {
  set=$sets/$1
  shift
  for size in 12 18 24; do
    mkdir -p "$set/$size"
    for symbol in $symbols; do
      rsvg-convert "$@" --output "$set/$size/$symbol.png" "$here/$size/$symbol.svg"
    done
  done
}

# write_bitmaps SET SIZE: out of one strip, for a program started for each picture takes seconds.
write_bitmaps() {
  size=$2 set=$sets/$1/$2 folder=$bitmaps/$2
  mkdir -p "$folder"
  set --
  for symbol in $symbols; do
    set -- "$@" "$set/$symbol.png"
  done
  convert "$@" -reverse -append PNG32:- | premultiplied_pixels - | for symbol in $symbols; do
    { bitmap_header "$size" "$size" && head -c $((size * size * 4)); } > "$folder/$symbol.bmp"
  done
}

draw_set Tidewell
draw_set Mono --stylesheet "$here/mono.css"
write_bitmaps Tidewell 12
write_bitmaps Tidewell 24
