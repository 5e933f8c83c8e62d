#!/bin/bash
# Runs every command of the companion, in both languages, on backups that the program has written on
# the sample device: goldens.sh PROGRAM [--write]. Fails where it prints or writes anything else than
# the files in golden/ have; with --write they are written anew, to be read before they are kept.
set -euo pipefail
program=$(realpath "$1")
golden=$(realpath "$(dirname "$0")")/golden
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/found"
cp "${golden%/*}"/*.twsb "$folder"
cd "$folder"

text() { iconv -f UTF-16LE -t UTF-8 "$1"; }

# run NAME ARGUMENT...: what it prints, its exit code and, where it has written out.twsb, which lines
# of its first file that one has otherwise.
run() {
  local name=$1 language
  shift
  for language in en de; do
    rm -f out.twsb
    {
      "$program" "$@" --language "$language" 2>&1 && echo "exit 0" || echo "exit $?"
      [[ ! -e out.twsb ]] || diff <(text "$2") <(text out.twsb) || true
    } >"found/$name.$language.txt"
  done
}

# A damaged one: a number that is none, one too large, a line of nothing, a key that is no header.
text changed.twsb | sed -e 's/"Order"=dword:8/"Order"=dword:8x/' -e 's/"NoteZoom"=.*/&0000000000/' \
  -e 's/^"OnClick".*/OnClick/' -e 's/^\[.*Messages\]$/& /' | iconv -f UTF-8 -t UTF-16LE >damaged.twsb
# Any file with other colors is a scheme.
"$program" scheme everything.twsb -o scheme.scm

run show show sample.twsb
run show-of-a-device show sample.twsb --device vga --locale de_DE --aligned
run show-changed show everything.twsb --changed
run show-json show sample.twsb Calendar --json
run check check everything.twsb
run check-damaged check damaged.twsb
run diff diff sample.twsb changed.twsb
run diff-aligned diff sample.twsb changed.twsb --aligned
run diff-json diff sample.twsb changed.twsb --json
run get get everything.twsb dNumOfDays Fonts/FontGeneral TabSettings/Clock/DLL SeperatorLineClr
run set set sample.twsb dNumOfDays=21 SeperatorLineClr=#12abEF OnClick=default SkinPath=Ä -o out.twsb
run set-refused set sample.twsb dNumOfDays=121 -o out.twsb
run merge merge sample.twsb changed.twsb --only Tasks Filters Tabs/Position \
  "TabSettings/Moon phases/DLL" --except TsksDateFrmt -o out.twsb
run merge-refused merge sample.twsb changed.twsb --only Taks -o out.twsb
run apply-scheme apply-scheme sample.twsb scheme.scm -o out.twsb --aligned
run list list
run list-json list Tabs --json
text scheme.scm >found/scheme.txt
diff found/show.en.txt <("$program" show <(cat sample.twsb) && echo "exit 0")

if [[ ${2-} == --write ]]; then
  rm -rf "$golden"
  cp -r found "$golden"
else
  diff -r "$golden" found
fi
