# Completion of tidewell-backup for bash.
_tidewell_backup() {
  local commands="show check diff get set merge scheme apply-scheme list"
  local groups="General Calendar Tasks Notes Contacts Messages SEvents Fonts Colors PIM Tabs Categories Filters"
  local facts="--language --device --locale" style="--json --aligned"
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} words=''
  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W "$commands --help" -- "$word")
    return
  fi
  case $before in
    --language) words="en de" ;;
    --device) words="qvga qvga-landscape square vga vga-landscape" ;;
    --locale) words="en_US en_GB de_DE de_AT de_CH" ;;
    --only) words=$groups ;;
    -o | --output | --except) ;;
    *)
      case ${COMP_WORDS[1]} in
        show) words="--changed $style $facts $groups" ;;
        list) words="$style $facts $groups" ;;
        diff | get) words="$style $facts" ;;
        check) words=$facts ;;
        set | apply-scheme) words="-o --in-place $style $facts" ;;
        merge) words="--only --except -o --in-place $style $facts" ;;
        scheme) words="-o" ;;
      esac
      words+=" --help"
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -W "$words" -- "$word"; compgen -f -- "$word")
}
complete -o filenames -F _tidewell_backup tidewell-backup
