#!/bin/bash
# Runs the examples of the README and of docs/companion.md with the program that is named, on a copy
# of the sample; fails where one prints something else. Then sees that the manual page and the
# completion have every command and every option.
set -euo pipefail
program=$(realpath "$1")
root=$(cd "$(dirname "$0")/../.." && pwd)
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cp "$root/tests/companion/sample.twsb" "$folder"
ln -s "$program" "$folder/tidewell-backup"
cd "$folder"
PATH=$folder:$PATH
examples=0 failed=0 command='' expected=''

run_example() {
  if [[ ! $command ]]; then
    expected=''
    return
  fi
  examples=$((examples + 1))
  local printed
  printed=$(eval "$command" 2>&1) || true
  while [[ $expected == *$'\n' ]]; do expected=${expected%$'\n'}; done
  if [[ $printed != "$expected" ]]; then
    printf '%s\nprints\n%s\nand not\n%s\n' "$command" "$printed" "$expected"
    failed=1
  fi
  command='' expected=''
}

for document in docs/companion.md README.md; do
  while IFS= read -r line; do
    case $line in
      '    $ tidewell-backup '*)
        run_example
        command=${line#"    $ "}
        ;;
      '    '*) expected+=${line#    }$'\n' ;;
      '') expected+=$'\n' ;;
      *) run_example ;;
    esac
  done <"$root/$document"
  run_example
done
((examples >= 8)) || { echo "Only $examples examples."; failed=1; }

commands=$(tidewell-backup --help | sed -n '/^Subcommands:/,/^$/s/^  \([a-z-]*\) .*/\1/p')
[[ $commands ]]
for word in $commands $(for each in $commands; do tidewell-backup "$each" --help; done | grep -o -e '--[a-z-]*' | sort -u); do
  for file in docs/tidewell-backup.1 tools/tidewell-backup.bash; do
    [[ $file == *.bash && $word == --output ]] && continue
    sed 's/\\-/-/g' "$root/$file" | grep -q -e "$word" || { echo "$file: lacks $word"; failed=1; }
  done
done
exit "$failed"
