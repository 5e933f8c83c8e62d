#!/bin/sh
# check_imports_test.sh CHECK NM COMPILER FUNCTIONS EXCEPTIONS OBJECT
#
# The check has to name the planted calls that no device has, and those alone.
set -eu

check=$1
shift
expected='planted_calls.cpp.obj calls RegDeleteTreeW, which a device does not have.
planted_calls.cpp.obj calls ReplaceFileW, which a device does not have.'

status=0
told=$(sh "$check" "$@") || status=$?
[ "$status" -eq 1 ] && [ "$told" = "$expected" ] || {
  printf 'The check ended with %s and told:\n%s\n' "$status" "$told"
  exit 1
}
