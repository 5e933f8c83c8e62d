#!/bin/bash
# Builds everything and runs all tests, native first. One line per suite; the last line is
# "N passed, N failed". What each suite printed is in build/logs.

. "$(dirname "$0")/scripts/common.sh"
. "$root/scripts/device.sh"

# The suites, each a GoogleTest program below a preset's folder, with its time limit in seconds.
native_suites=(
  "core 60 tests/core_tests"
)
windows_suites=(
  "core 120 tests/core_tests.exe"
  "settings 60 tests/settings/settings_tests.exe"
  "resources 60 tests/resources/resource_tests.exe"
  "pages 120 tests/pages/page_tests.exe"
)

passed=0
failed=0

# record NAME PASSED FAILED SECONDS LOG: counts a suite and prints its line; on a failure also what
# it printed last.
record() {
  local name=$1 suite_passed=$2 suite_failed=$3 seconds=$4 log=$5
  passed=$((passed + suite_passed))
  failed=$((failed + suite_failed))
  printf '%-28s %5d passed %5d failed %7.1f s\n' "$name" "$suite_passed" "$suite_failed" "$seconds"
  if ((suite_failed)); then
    tail -n 40 "$log" | sed 's/^/    /'
  fi
}

# run_timed COMMAND...: sets $status and $seconds.
run_timed() {
  local start=$EPOCHREALTIME
  status=0
  "$@" || status=$?
  seconds=$(awk "BEGIN { print $EPOCHREALTIME - $start }")
}

# The number of an attribute of the report's first line that has it; 0 where there is none.
report_number() { sed -n "s/.*<testsuites [^>]*$1=\"\([0-9]*\)\".*/\1/p" "$2" | head -n 1; }

# record_report NAME REPORT LOG: a suite that wrote no report, ran nothing, or ended badly after a
# clean report has failed once more than it says.
record_report() {
  local name=$1 report=$2 log=$3 ran=0 bad=0 skipped=0
  if [[ -s $report ]]; then
    ran=$(report_number tests "$report")
    bad=$(report_number failures "$report")
    skipped=$(($(report_number disabled "$report") + $(grep -c 'result="skipped"' "$report" || true)))
  fi
  ran=$((ran - skipped))
  if ((ran <= 0 || (status != 0 && bad == 0))); then
    printf '\n%s: ended with status %s after %s tests\n' "$name" "$status" "$ran" >>"$log"
    record "$name" "$((ran > 0 ? ran : 0))" 1 "$seconds" "$log"
  else
    record "$name" "$((ran - bad))" "$bad" "$seconds" "$log"
  fi
}

# The suites' words: NAME SECONDS PROGRAM.
run_native_suite() {
  local name="$1, native" limit=$2 program=$build/host/$3
  local log=$logs/$1-native.log report=$logs/$1-native.xml
  rm -f "$report"
  run_timed timeout --foreground --kill-after=5 "$limit" \
    "$program" "--gtest_output=xml:$report" >"$log" 2>&1 </dev/null
  record_report "$name" "$report" "$log"
}

# The exit code of a program on the Wine desktop does not come back; its report tells all.
run_windows_suite() {
  local name="$1, Windows" limit=$2 program=$build/windows/$3
  local log=$logs/$1-windows.log report=$logs/$1-windows.xml
  rm -f "$report"
  if [[ ! -f $program ]]; then
    say "$program was not built." >"$log"
    record "$name" 0 1 0 "$log"
    return
  fi
  time_limit=$limit
  start_folder=$(dirname "$program")
  run_timed on_screen "Z:$program" "--gtest_output=xml:Z:$report" >"$log" 2>&1 </dev/null
  time_limit=
  start_folder=
  if ((status == 124 || status == 137)); then
    say "No end after $limit seconds." >>"$log"
    restart_device
  fi
  record_report "$name" "$report" "$log"
}

# run_check NAME COMMAND...: a command that passes or fails as a whole.
run_check() {
  local name=$1 log=$logs/${1// /-}.log
  shift
  run_timed "$@" >"$log" 2>&1 </dev/null
  record "$name" "$((status == 0))" "$((status != 0))" "$seconds" "$log"
}

# try_build PRESET: a build that fails is a suite that failed.
try_build() {
  say "Building the $1 preset"
  run_timed build_preset "$1"
  ((status == 0)) || record "build, $1" 0 1 "$seconds" "$logs/build-$1.log"
  return "$status"
}

run_native_tests() {
  try_build host || return 0
  local suite words
  for suite in "${native_suites[@]}"; do
    read -ra words <<<"$suite"
    run_native_suite "${words[@]}"
  done
}

run_windows_tests() {
  try_build windows || return 0
  forget_device test
  use_device test
  use_screen vga
  use_virtual_display
  local suite words
  for suite in "${windows_suites[@]}"; do
    read -ra words <<<"$suite"
    run_windows_suite "${words[@]}"
  done
}

need_packages "${program_packages[@]}" "${test_packages[@]}"
run_native_tests
run_windows_tests

say "$passed passed, $failed failed"
((failed == 0 && passed > 0))
