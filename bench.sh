#!/bin/bash
# Measures every figure that the project promises and prints one table: the median, its quartiles,
# its aim, and what stands behind it. Ratios are to a floor or a peer measured in turns in the same
# run; times alone say more about the machine than about the program. Let nothing else run.

. "$(dirname "$0")/scripts/common.sh"
. "$root/scripts/device.sh"

# Each program prints its own lines: SCREEN PROGRAM.
programs=(
  "vga start_bench"
  "vga store_bench"
  "vga backup_bench"
  "vga icons_bench"
  "qvga list_bench"
  "vga list_bench"
  "qvga page_bench"
  "vga page_bench"
  "qvga crowded_bench"
  "vga crowded_bench"
  "qvga dialog_bench"
  "vga dialog_bench"
  "qvga preview_bench"
  "vga preview_bench"
)

print_size() {
  local stripped=$build/bench/TidewellSettings.exe size
  mkdir -p "$build/bench"
  x86_64-w64-mingw32-strip -o "$stripped" \
    "$build/windows/device/Program Files/Velmont/Tidewell/TidewellSettings.exe"
  size=$(stat -c %s "$stripped")
  printf '%-52s %8.2f%-4s %-16s %-8s\n' "size of the stripped program" \
    "$(awk "BEGIN { print $size / 1000 }")" " kB" "" "700 kB"
}

need_packages "${program_packages[@]}" googletest
say "Building the programs"
build_preset windows || exit
build_preset release tidewell_backup companion_bench || exit
# A device has one processor. On several, a call to Wine's server costs up to ten times as much
# whenever the system happens to put the server on another: all is measured on one.
taskset -pc "$(taskset -pc $$ | sed 's/.*[ ,-]//')" $$ >/dev/null

forget_device bench
use_device bench
install_program

printf '\n%-52s %8s%-4s %-16s %-8s %s\n' "" median "" "from to" aim "behind it"
for words in "${programs[@]}"; do
  read -r wanted program <<<"$words"
  use_screen "$wanted"
  use_virtual_display
  on_screen "Z:$build/windows/bench/$program.exe" | tr -d '\r'
done
"$build/release/bench/companion_bench" "$build/release/tools/tidewell-backup" \
  "$(find "$root/tests/companion" -name '*.twsb' | sort | head -n 1)"
print_size
