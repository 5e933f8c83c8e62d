# shellcheck shell=bash disable=SC2034
# Sourced by run.sh, test.sh and bench.sh: what they print, what they install, what they build.

set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build
logs=$build/logs
mkdir -p "$logs"

say() { printf '%s\n' "$*"; }
fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

# Commands to run when the script ends, the last one first.
exit_commands=()
at_exit() { exit_commands=("$*" "${exit_commands[@]}"); }
run_exit_commands() {
  local status=$? command
  trap - EXIT
  for command in "${exit_commands[@]}"; do eval "$command" || true; done
  exit "$status"
}
trap run_exit_commands EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

# The one list of the Debian packages that the project needs.
program_packages=(
  cmake ninja-build                 # the build
  g++                               # the compiler of what the build runs itself
  g++-mingw-w64-x86-64-posix        # the compiler for Windows, with real threads
  libstb-dev                        # a decoder of TGA pictures
  librsvg2-bin imagemagick          # the artwork, and pictures of the screen
  libcli11-dev nlohmann-json3-dev   # the companion's arguments and its JSON
  wine64 fonts-wine                 # the stand-in for a device
  fonts-dejavu-extra                # its letters at 96 dots per inch
  xvfb                              # a screen where there is none
)
test_packages=(
  googletest                        # the core, native
  clang libclang-rt-14-dev          # the fuzz targets
  clang-format clang-tidy           # the lint
)

have_package() { dpkg-query -W -f '${Status}' "$1" 2>/dev/null | grep -q '^install ok installed'; }

# Installs those of the named packages that are missing; touches nothing when none is.
need_packages() {
  local package missing=() sudo=()
  command -v dpkg-query >/dev/null || fail "This script installs what it needs with apt-get, on Debian 12; this system has none. Needed: $*."
  for package in "$@"; do have_package "$package" || missing+=("$package"); done
  ((${#missing[@]})) || return 0

  say "Installing with apt-get: ${missing[*]}"
  if ((EUID != 0)); then
    command -v sudo >/dev/null || fail "Root or sudo is needed to install these packages: ${missing[*]}."
    sudo=(sudo)
  fi
  local apt=("${sudo[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -y -q)
  "${apt[@]}" update >"$logs/apt.log" 2>&1 || true  # the install tells whether it mattered
  "${apt[@]}" install --no-install-recommends "${missing[@]}" >>"$logs/apt.log" 2>&1 ||
    fail "apt-get could not install ${missing[*]}; build/logs/apt.log tells why."
}

# build_preset PRESET [TARGET...]: everything of a preset where no target is named. False, with the
# compiler's words printed, when it does not build.
build_preset() {
  local preset=$1 log=$logs/build-$1.log
  local command=(cmake --build --preset "$preset")
  shift
  (($# == 0)) || command+=(--target "$@")
  {
    [[ -f $build/$preset/build.ninja ]] || (cd "$root" && cmake --preset "$preset")
    (cd "$root" && "${command[@]}")
  } >"$log" 2>&1 || {
    grep -E -A 5 'FAILED|error' "$log" | head -n 40 >&2 || tail -n 40 "$log" >&2
    say "The $preset build failed; build/logs/$(basename "$log") has all of it." >&2
    return 1
  }
}
