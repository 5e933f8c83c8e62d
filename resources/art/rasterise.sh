#!/bin/sh
# Makes a Windows bitmap of a drawing: rasterise.sh KIND WIDTH DRAWING.svg BITMAP.bmp
# KIND is "alpha" (32 bits, premultiplied), "keyed" (24 bits, pure red where the drawing is
# transparent, its edges blended with white) or "plain" (24 bits on white).
set -eu
. "$(dirname "$0")/bitmap.sh"
kind=$1 width=$2 drawing=$3 bitmap=$4
picture=$bitmap.png
trap 'rm -f "$picture"' EXIT
rsvg-convert --width "$width" --keep-aspect-ratio "$drawing" --output "$picture"

write_alpha() {
  size=$(identify -format '%w %h' "$picture")
  bitmap_header "$width" "${size#* }"
  premultiplied_pixels "$picture"
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
