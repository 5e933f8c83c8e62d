#!/bin/sh
# Makes a Windows bitmap of a drawing: rasterise.sh KIND WIDTH DRAWING.svg BITMAP.bmp
# KIND is "alpha" (32 bits, premultiplied), "keyed" (24 bits, pure red where the drawing is
# transparent, its edges blended with white) or "plain" (24 bits on white).
set -eu
kind=$1 width=$2 drawing=$3 bitmap=$4
picture=$bitmap.png
trap 'rm -f "$picture"' EXIT
rsvg-convert --width "$width" --keep-aspect-ratio "$drawing" --output "$picture"

# Octal escapes of a little-endian 32-bit number.
dword() {
  printf '\\%03o\\%03o\\%03o\\%03o' \
    $(($1 & 255)) $(($1 >> 8 & 255)) $(($1 >> 16 & 255)) $(($1 >> 24 & 255))
}

# The plain 40-byte header: the longer ones that image programs write for alpha are not read
# everywhere.
write_alpha() {
  size=$(identify -format '%w %h' "$picture")
  height=${size#* }
  bytes=$((width * height * 4))
  printf "BM$(dword $((bytes + 54)))$(dword 0)$(dword 54)"
  printf "$(dword 40)$(dword "$width")$(dword "$height")\001\000\040\000$(dword 0)"
  printf "$(dword $bytes)$(dword 3780)$(dword 3780)$(dword 0)$(dword 0)"
  convert "$picture" -background black \
    \( -clone 0 -alpha remove -alpha off \) \( -clone 0 -alpha extract \) -delete 0 \
    -compose CopyOpacity -composite -flip -depth 8 BGRA:-
}

case $kind in
  alpha) write_alpha > "$bitmap" ;;
  keyed)
    convert -background white "$picture" \
      \( -clone 0 -alpha extract -threshold 0 \) \( -clone 0 -alpha remove -alpha off \) \
      -delete 0 -compose CopyOpacity +swap -composite \
      -background red -alpha remove -alpha off "BMP3:$bitmap" ;;
  plain) convert -background white "$picture" -alpha remove -alpha off "BMP3:$bitmap" ;;
esac
