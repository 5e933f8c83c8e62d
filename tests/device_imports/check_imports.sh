#!/bin/sh
# check_imports.sh NM COMPILER FUNCTIONS EXCEPTIONS OBJECTS...
#
# Fails on every call of the system in OBJECTS (object files or archives) that is neither in the
# list FUNCTIONS nor in EXCEPTIONS (a name and its reason on each line). A call of the system is an
# undefined name without C++ mangling that neither OBJECTS nor one of the compiler's own runtime
# libraries defines.
set -eu

nm=$1 compiler=$2 functions=$3 exceptions=$4
shift 4

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

for library in stdc++ gcc gcc_eh mingw32 mingwex moldname msvcrt ssp uuid; do
  "$nm" -g --defined-only "$("$compiler" -print-file-name="lib$library.a")" 2>/dev/null
done >"$work/runtime"
"$nm" -g --defined-only "$@" >"$work/own"
"$nm" -A -u "$@" >"$work/undefined"
for list in runtime own undefined; do
  [ -s "$work/$list" ] || { echo "$nm lists no $list symbols." >&2; exit 2; }
done

awk -v functions="$functions" -v exceptions="$exceptions" '
  function plain(symbol) { sub(/^__imp_/, "", symbol); return symbol }
  FILENAME ~ /(runtime|own)$/ { if (NF == 3) known[plain($3)] = 1; next }
  FILENAME == functions { for (i = 1; i <= NF; ++i) known[$i] = 1; next }
  FILENAME == exceptions { if ($1 !~ /^#/) known[$1] = 1; next }
  / [Uw] [^ ]+$/ {
    symbol = plain($NF)
    if (symbol in known || symbol ~ /^_Z/) next
    object = $0
    sub(/: +[Uw] .*/, "", object)
    sub(/.*[\/\\:]/, "", object)
    print object " calls " symbol ", which a device does not have."
    found = 1
  }
  END { exit found }
' "$work/runtime" "$work/own" "$functions" "$exceptions" "$work/undefined"
