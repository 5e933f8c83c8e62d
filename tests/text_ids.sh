#!/bin/sh
# Fails when a text is missing or of no use: every id of resources/text/text_ids.h stands once in each
# language's script and is named in src/, or tests/text_ids_not_named.txt says why it is not; and what
# the scripts and src/ name has its number there.
set -eu
cd "$(dirname "$0")/.."
lists=$(mktemp -d)
trap 'rm -r "$lists"' EXIT

sed -n 's/^#define \(IDS_[A-Z0-9_]*\) .*/\1/p' resources/text/text_ids.h | sort >"$lists/text_ids.h"
[ -s "$lists/text_ids.h" ]
sed -n 's/^  *\(IDS_.*\)/\1/p' tests/text_ids_not_named.txt | tr -s ' ' '\n' | sort >"$lists/not_named"
grep -rhow 'IDS_[A-Z0-9_]*' src --include='*.cpp' --include='*.h' | sort -u >"$lists/src"
sort "$lists/src" "$lists/not_named" >"$lists/named or excepted"
for script in resources/text/*.rc; do
  sed -n 's/^  *\(IDS_[A-Z0-9_]*\),.*/\1/p' "$script" | sort >"$lists/${script##*/}"
done

cd "$lists"
for list in *.rc "named or excepted"; do
  diff -U 0 --label text_ids.h --label "$list" text_ids.h "$list" || touch failed
done
[ ! -e failed ]
