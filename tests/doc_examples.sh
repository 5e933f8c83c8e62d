#!/bin/sh
# Fails when an example of docs/add-a-setting.md is not what the program does: each line of an
# indented block must stand, blanks aside, in the source that the text named last before it.
set -eu
cd "$(dirname "$0")/.."

awk '
  function squeezed(line) { gsub(/[ \t]+/, " ", line); sub(/^ /, "", line); return line }
  function holds(file, wanted,   line, found) {
    while ((getline line < file) > 0) if (index(squeezed(line), wanted)) found = 1
    close(file)
    return found
  }
  /^    / {
    examples++
    if (!holds(file, squeezed($0))) { print FILENAME ":" FNR ": not in " file ":" $0; failed = 1 }
    next
  }
  { while (match($0, /`(src|resources)\/[a-z_\/]+\.(h|cpp)`/)) {
      file = substr($0, RSTART + 1, RLENGTH - 2)
      $0 = substr($0, RSTART + RLENGTH)
  } }
  END { print examples + 0 " lines of examples."; exit failed || !examples }' docs/add-a-setting.md
