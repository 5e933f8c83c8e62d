# Parts of a Windows bitmap of 32 bits with premultiplied alpha, for the scripts that write some.

# Octal escapes of a little-endian 32-bit number.
dword() {
  printf '\\%03o\\%03o\\%03o\\%03o' \
    $(($1 & 255)) $(($1 >> 8 & 255)) $(($1 >> 16 & 255)) $(($1 >> 24 & 255))
}

# bitmap_header WIDTH HEIGHT
# The plain 40-byte header: the longer ones that image programs write for alpha are not read
# everywhere.
bitmap_header() {
  bytes=$(($1 * $2 * 4))
  printf "BM$(dword $((bytes + 54)))$(dword 0)$(dword 54)"
  printf "$(dword 40)$(dword "$1")$(dword "$2")\001\000\040\000$(dword 0)"
  printf "$(dword $bytes)$(dword 3780)$(dword 3780)$(dword 0)$(dword 0)"
}

# premultiplied_pixels PICTURE: from the bottom row up.
premultiplied_pixels() {
  convert "$1" -background black \
    \( -clone 0 -alpha remove -alpha off \) \( -clone 0 -alpha extract \) -delete 0 \
    -compose CopyOpacity -composite -flip -depth 8 BGRA:-
}
