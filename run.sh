#!/bin/bash
# Builds the program, installs it on a device made of Wine and starts it: see --help.

. "$(dirname "$0")/scripts/common.sh"
. "$root/scripts/device.sh"

usage="Usage: ./run.sh [OPTION...]

Installs what is missing, builds the program, installs it on a device of its own below build/ and
starts it. Without a display it writes pictures of everything there is to see to build/pictures.

  --screen NAME      the device's screen (vga):
                       qvga            240x320 at  96 dots per inch
                       qvga-landscape  320x240 at  96
                       square          240x240 at  96
                       vga             480x640 at 192
                       vga-landscape   640x480 at 192
  --language en|de   the program's language, kept until it is chosen again
  --fresh            forgets the device and its settings first
  --about            starts with the about box
  --pictures DIR     writes the pictures to DIR, every screen and language, or those that
                     --screen and --language name
  --help             this text"

chosen_screen='' chosen_language='' fresh=no pictures='' arguments=()
while (($#)); do
  case $1 in
    --help)
      say "$usage"
      exit
      ;;
    --screen | --language | --pictures)
      (($# > 1)) || fail "$1 needs a value; --help tells which."
      case $1 in
        --screen) chosen_screen=$2 ;;
        --language) chosen_language=$2 ;;
        --pictures) pictures=$2 ;;
      esac
      shift
      ;;
    --fresh) fresh=yes ;;
    --about) arguments=(About) ;;
    *) fail "There is no option $1; --help tells those there are." ;;
  esac
  shift
done
[[ -z $chosen_screen || " ${screens[*]} " == *" $chosen_screen "* ]] ||
  fail "There is no screen \"$chosen_screen\"; there are: ${screens[*]}."
[[ -z $chosen_language || " ${languages[*]} " == *" $chosen_language "* ]] ||
  fail "There is no language \"$chosen_language\"; there are: ${languages[*]}."

if [[ -z $pictures && -z ${DISPLAY:-} ]]; then
  say "There is no display: taking pictures on a virtual one instead."
  pictures=$build/pictures
fi

need_packages "${program_packages[@]}"

# The locale of a device that is sold with such a language.
locale_of() {
  case $1 in
    en) echo en_US.UTF-8 ;;
    de) echo de_DE.UTF-8 ;;
  esac
}

# Takes the pictures that a program of tools/ shows on one screen in one language on the virtual
# display. It runs inside the Wine desktop, says "picture NAME", and goes on when it is answered.
take_pictures() {
  local program=$1 language=$2 word name count=0
  use_language "$language"
  wine_environment+=("LC_ALL=$(locale_of "$language")")
  coproc tour { on_screen "Z:$build/windows/tools/$program.exe" 2>/dev/null; }
  local from=${tour[0]} to=${tour[1]}
  while read -r -t 60 -u "$from" word name; do
    name=${name%$'\r'}
    case $word in
      picture)
        take_settled_picture "$pictures/$screen-$language-$name.png"
        count=$((count + 1))
        echo >&"$to"
        ;;
      trouble) fail "The $program at $screen in \"$language\" stopped: $name." ;;
      end) break ;;
    esac
  done
  [[ $word == end* ]] || fail "The $program at $screen in \"$language\" broke off after $count pictures."
  wait "$tour_PID" 2>/dev/null || true
  say "  $screen, $language, $program: $count pictures"
}

write_pictures() {
  say "Building the program"
  build_preset windows device tour preview_sheet dialog_sheet || exit
  mkdir -p "$pictures"
  pictures=$(cd "$pictures" && pwd)
  forget_device pictures  # the pictures show the program as it is on its first day
  use_device pictures
  install_program
  say "Taking pictures into $pictures"
  local tour_screen tour_language
  for tour_screen in ${chosen_screen:-${screens[@]}}; do
    use_screen "$tour_screen"
    use_virtual_display
    for tour_language in ${chosen_language:-${languages[@]}}; do
      take_pictures tour "$tour_language"
      take_pictures preview_sheet "$tour_language"
      take_pictures dialog_sheet "$tour_language"
    done
  done
}

start_program() {
  say "Building the program"
  build_preset windows device || exit
  [[ $fresh == no ]] || forget_device device
  use_device device
  install_program
  use_screen "${chosen_screen:-vga}"
  [[ -z $chosen_language ]] || use_language "$chosen_language"
  say "Starting the program on a screen of ${screen_width}x$screen_height at $screen_dpi dots per inch"
  on_screen "$installed" "${arguments[@]}"
}

if [[ -n $pictures ]]; then write_pictures; else start_program; fi
