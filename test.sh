#!/bin/bash
# Builds everything and runs all tests, native first. One line per suite; the last line is
# "N passed, N failed". What each suite printed is in build/logs.

. "$(dirname "$0")/scripts/common.sh"
. "$root/scripts/device.sh"

native_limit=120   # seconds for one suite
windows_limit=300
fuzz_time=8        # seconds for one target

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

# A GoogleTest program on this machine: run_native_suite NAME PROGRAM.
run_native_suite() {
  local name=$1 program=$2
  local log=$logs/$name-native.log report=$logs/$name-native.xml
  rm -f "$report"
  run_timed timeout --foreground --kill-after=5 "$native_limit" \
    "$program" "--gtest_output=xml:$report" >"$log" 2>&1 </dev/null
  record_report "$name, native" "$report" "$log"
}

# A GoogleTest program on the device's present screen. Its exit code does not come back from there;
# its report tells all.
run_windows_suite() {
  local name=$1 program=$2
  local log=$logs/$name-$screen.log report=$logs/$name-$screen.xml
  rm -f "$report"
  time_limit=$windows_limit
  start_folder=$(dirname "$program")
  run_timed on_screen "Z:$program" "--gtest_output=xml:Z:$report" >"$log" 2>&1 </dev/null
  time_limit=
  start_folder=
  if ((status == 124 || status == 137)); then
    say "No end after $windows_limit seconds." >>"$log"
    restart_device
  fi
  record_report "$name, $screen" "$report" "$log"
}

# Any other command that the build has registered passes or fails as a whole.
run_check() {
  local name=$1 preset=$2
  local log=$logs/$name-$preset.log
  run_timed ctest --test-dir "$build/$preset" --output-on-failure --no-tests=error --timeout 300 \
    -R "^$name\$" >"$log" 2>&1 </dev/null
  record "$name" "$((status == 0))" "$((status != 0))" "$seconds" "$log"
}

# registered_tests PRESET: one line "NAME COMMAND" for each test that the build has registered.
registered_tests() {
  ctest --test-dir "$build/$1" -N -V | awk '
    sub(/^[0-9]+: Test command: /, "") { command = $0 }
    sub(/^ *Test +#[0-9]+: /, "") { print $0, command }'
}

# run_registered PRESET SUITE_RUNNER: the programs that are suites, and the other commands.
run_registered() {
  local preset=$1 runner=$2 tests name command
  mapfile -t tests < <(registered_tests "$preset")
  for name in "${tests[@]}"; do
    command=${name#* }
    name=${name%% *}
    case $command in
      *_tests | *_tests.exe | *_tests\" | *_tests.exe\") "$runner" "$name" "${command//\"/}" ;;
      *) run_check "$name" "$preset" ;;
    esac
  done
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
  run_registered host run_native_suite
}

run_windows_tests() {
  forget_device test
  use_device test
  install_program
  use_screen qvga
  use_virtual_display
  run_registered windows run_windows_suite
  # The installed program once more where everything is twice the size.
  use_screen vga
  use_virtual_display
  run_windows_suite device "$build/windows/tests/device/device_tests.exe"
}

# Each fuzz target begins with its seeds and looks for more for a little while; what it finds stays
# out of the sources. How each ended is kept beside its log.
run_fuzz_targets() {
  local program name corpus dictionary seeds
  for program in "$build"/fuzz/tests/fuzz/*_fuzz; do
    name=$(basename "$program" _fuzz)
    seeds=$root/tests/fuzz/seeds/$name
    dictionary=$root/tests/fuzz/dictionaries/$name.dict
    corpus=$build/fuzz/corpus/$name
    mkdir -p "$corpus"
    [[ -d $seeds ]] || seeds=
    [[ -f $dictionary ]] || dictionary=
    run_timed "$program" -max_total_time="$fuzz_time" -timeout=10 -artifact_prefix="$logs/$name-" \
      ${dictionary:+"-dict=$dictionary"} "$corpus" ${seeds:+"$seeds"} \
      >"$logs/$name-fuzz.log" 2>&1 </dev/null
    say "$status $seconds" >"$logs/$name-fuzz.end"
  done
}

record_fuzz_targets() {
  local program name
  for program in "$build"/fuzz/tests/fuzz/*_fuzz; do
    name=$(basename "$program" _fuzz)
    read -r status seconds <"$logs/$name-fuzz.end" || status=1 seconds=0
    record "$name, fuzz" "$((status == 0))" "$((status != 0))" "$seconds" "$logs/$name-fuzz.log"
  done
}

need_packages "${program_packages[@]}" "${test_packages[@]}"
run_native_tests
fuzz=no windows=no
try_build fuzz && fuzz=yes
try_build windows && windows=yes
# The suites under Wine leave one processor idle, which is the fuzz targets'.
rm -f "$logs"/*-fuzz.end
if [[ $fuzz == yes ]]; then
  run_fuzz_targets &
  fuzzing=$!
fi
[[ $windows == no ]] || run_windows_tests
if [[ $fuzz == yes ]]; then
  wait "$fuzzing" || true
  record_fuzz_targets
fi

say "$passed passed, $failed failed"
((failed == 0 && passed > 0))
