#!/bin/sh
# Fails when a source file is not formatted as .clang-format says, or when clang-tidy finds fault
# with a file of the core or of a native tool. Needs clang-format, clang-tidy and a configured native
# build: its folder is the argument, or build/host. A file that was found clean is read again only
# after it, a header or .clang-tidy changed.
set -eu
cd "$(dirname "$0")/.."

build=${1:-build/host}
[ -f "$build/compile_commands.json" ] || { echo "First run cmake --preset host." >&2; exit 2; }
mkdir -p "$build/lint"

find src tests tools bench -name '*.h' -print0 -o -name '*.cpp' -print0 |
  xargs -0 clang-format --dry-run --Werror

core=$(sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "$build/compile_commands.json" |
  grep -F -e "$PWD/src/" -e "$PWD/tools/" | sort -u)
shared=$(find src -name '*.h' | sort | xargs -d '\n' cat .clang-tidy | sha1sum)
# The analyzer's deep search takes four times as long as all the rest; sanitizers and fuzzing go deeper.
quick="--extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang --extra-arg=mode=shallow"
export build shared quick
printf '%s\n' "$core" | xargs -d '\n' -P "$(nproc)" -n 1 sh -c '
    clean=$build/lint/$(printf "%s" "$shared" | cat - "$1" | sha1sum | cut -c 1-40)
    [ -e "$clean" ] && exit
    told=$(clang-tidy --quiet -p "$build" $quick "$1" 2>&1) && : >"$clean" || {
      printf "%s\n" "$told" | grep -v "warnings generated"
      exit 1
    }' lint
