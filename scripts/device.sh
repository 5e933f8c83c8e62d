# shellcheck shell=bash disable=SC2034,SC2154
# Sourced after common.sh: a device made of Wine. A prefix of the project's own under build/wine, a
# Wine desktop of a device's screen, the program installed as a device has it, and pictures.

wine64=/usr/lib/wine/wine64
wineserver64=/usr/lib/wine/wineserver64  # not Debian's wrapper, which ends the server at once
installed='C:\Program Files\Velmont\Tidewell\TidewellSettings.exe'

# Wine programs start on drive C, so that paths without a drive are the device's, or in
# $start_folder. They are ended after $time_limit seconds where that is set; what they started goes
# on until stop_device.
time_limit=
start_folder=
in_wine() {
  (
    cd "${start_folder:-$prefix/drive_c}" || exit
    exec env "${wine_environment[@]}" \
      ${time_limit:+timeout --foreground --kill-after=5 "$time_limit"} "$wine64" "$@" {device_lock}>&-
  )
}

# use_device NAME: chooses the prefix build/wine/NAME, makes it where it is absent, starts its
# server. It ends with the script.
use_device() {
  local name=$1
  local authority=${XAUTHORITY:-$HOME/.Xauthority}
  prefix=$build/wine/$name
  wine_environment=(
    "HOME=$build/wine/home"  # a prefix links its Documents and Desktop to it
    "XAUTHORITY=$authority"
    "WINEPREFIX=$prefix"
    "WINESERVER=$wineserver64"
    "WINEDEBUG=-all"
    "WINEDLLOVERRIDES=mscoree,mshtml,winemenubuilder.exe="
    "LC_ALL=${device_locale:-C.UTF-8}"  # under plain C, names beyond ASCII are invisible
  )
  mkdir -p "$build/wine/home"
  exec {device_lock}>"$build/wine/$name.lock"
  flock -n "$device_lock" ||
    fail "The device in build/wine/$name is running already; end it first."

  [[ -d $prefix ]] || copy_template
  at_exit stop_device
  start_server
  tell_device
}

# The server that stays, and Wine's services, started with no stream of ours: they would keep a
# pipe open as long as they live.
start_server() {
  env "${wine_environment[@]}" "$wineserver64" -p </dev/null >/dev/null 2>&1 {device_lock}>&-
  in_wine wineboot </dev/null >/dev/null 2>&1 || fail "Wine does not start in build/wine."
}

# Gives the prefix what scripts/device.reg says, unless it has been told already.
tell_device() {
  cmp -s "$root/scripts/device.reg" "$prefix/device.reg" && return
  # In the place of the file, which the prefix may share with the template.
  cp --remove-destination "$root/scripts/device.reg" "$prefix/"
  in_wine reg import "Z:$prefix/device.reg" </dev/null >/dev/null 2>&1 ||
    fail "Wine's registry does not take scripts/device.reg."
}

stop_device() {
  env "${wine_environment[@]}" "$wineserver64" -k >/dev/null 2>&1 || true
  env "${wine_environment[@]}" timeout 20 "$wineserver64" -w >/dev/null 2>&1 || true
}

restart_device() {
  stop_device
  start_server
}

forget_device() { rm -rf "$build/wine/$1"; }

# Prefixes are copies of one template. The system's files, 690 MB, are shared by hard links; the
# registry and what may be written in place are not.
copy_template() {
  local template=$build/wine/template
  [[ $template/device.reg -nt $root/scripts/device.reg ]] || make_template
  rm -rf "$prefix.new"
  cp -al "$template" "$prefix.new"
  cp -a --remove-destination "$template"/*.reg "$template/.update-timestamp" "$prefix.new/"
  find "$template/drive_c/windows" -maxdepth 1 -type f -name '*.ini' \
    -exec cp -a --remove-destination {} "$prefix.new/drive_c/windows/" \;
  mv "$prefix.new" "$prefix"
}

make_template() {
  say "Making a Wine prefix under build/wine"
  local wanted=$prefix
  prefix=$build/wine/template.new
  wine_environment+=("WINEPREFIX=$prefix")
  rm -rf "$prefix"
  mkdir -p "$prefix"
  env "${wine_environment[@]}" "$wineserver64" -p </dev/null >/dev/null 2>&1 {device_lock}>&-
  (cd "$prefix" && env -u DISPLAY "${wine_environment[@]}" "$wine64" wineboot -i) \
    </dev/null >"$logs/wineboot.log" 2>&1 {device_lock}>&- ||
    fail "Wine could not make a prefix; build/logs/wineboot.log tells why."
  # Wine does not look into Debian's package of its own fonts.
  ln -sf /usr/share/wine/fonts/*.ttf "$prefix/drive_c/windows/Fonts/"
  tell_device
  stop_device
  rm -rf "$build/wine/template"
  mv "$prefix" "$build/wine/template"
  prefix=$wanted
  wine_environment+=("WINEPREFIX=$prefix")
}

# What the build put together below build/windows/device is the device's drive.
install_program() {
  say "Installing the program on the device"
  cp -a "$build/windows/device/." "$prefix/drive_c/"
}

screens=(qvga qvga-landscape square vga vga-landscape)

# use_screen NAME: what later programs find as the device's screen.
use_screen() {
  screen=$1
  case $screen in
    qvga) screen_width=240 screen_height=320 screen_dpi=96 ;;
    qvga-landscape) screen_width=320 screen_height=240 screen_dpi=96 ;;
    square) screen_width=240 screen_height=240 screen_dpi=96 ;;
    vga) screen_width=480 screen_height=640 screen_dpi=192 ;;
    vga-landscape) screen_width=640 screen_height=480 screen_dpi=192 ;;
    *) fail "There is no screen \"$screen\"; there are: ${screens[*]}." ;;
  esac
  in_wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$screen_dpi" /f \
    </dev/null >/dev/null 2>&1
  use_letters
}

# Whose letters the device's face, Tahoma, has. At 96 dots per inch Wine's own Tahoma is drawn from
# bitmaps of other widths than those that it is measured with; where it is absent, the face that
# scripts/device.reg names takes its place. On a VGA screen its outlines are drawn as they measure,
# but its bold face is as thin as the regular one, which Wine thickens itself without it.
use_letters() {
  local fonts=$prefix/drive_c/windows/Fonts wanted=no there=no
  ((screen_dpi <= 96)) || wanted=yes
  [[ ! -L $fonts/tahoma.ttf ]] || there=yes
  [[ $wanted != "$there" || -L $fonts/tahomabd.ttf ]] || return 0
  rm -f "$fonts/tahoma.ttf" "$fonts/tahomabd.ttf"
  [[ $wanted == no ]] || ln -s /usr/share/wine/fonts/tahoma.ttf "$fonts/"
  in_wine reg delete 'HKCU\Software\Wine\Fonts\Cache' /f </dev/null >/dev/null 2>&1 || true
}

languages=(en de)

# use_language NAME: the language library that the program finds chosen.
use_language() {
  local file
  case $1 in
    en) file=TWEngRc.dll ;;
    de) file=TWGerRc.dll ;;
    *) fail "There is no language \"$1\"; there are: ${languages[*]}." ;;
  esac
  in_wine reg add 'HKCU\Software\Velmont\Tidewell' /v SelectedLangResFile /t REG_SZ \
    /d "\\Program Files\\Velmont\\Tidewell\\LangRes\\$file" /f </dev/null >/dev/null 2>&1
}

# on_screen PROGRAM [ARGUMENT...]: runs a program on a Wine desktop that is the chosen screen. Its
# streams pass through; its exit code does not.
on_screen() { in_wine explorer "/desktop=$screen,${screen_width}x$screen_height" "$@"; }

# A display of exactly the chosen screen's size, in the place of the one before.
use_virtual_display() {
  end_virtual_display
  local told=$build/wine/display number=
  : >"$told"
  Xvfb -displayfd 1 -screen 0 "${screen_width}x${screen_height}x24" -nolisten tcp \
    >"$told" 2>"$logs/xvfb.log" {device_lock}>&- &
  xvfb_process=$!
  while [[ -z $number ]]; do
    kill -0 "$xvfb_process" 2>/dev/null ||
      fail "The virtual display Xvfb does not start; build/logs/xvfb.log tells why."
    sleep 0.05
    number=$(<"$told")
  done
  export DISPLAY=:$number
}

xvfb_process=
end_virtual_display() {
  [[ -n $xvfb_process ]] || return 0
  kill "$xvfb_process" 2>/dev/null || true
  wait "$xvfb_process" 2>/dev/null || true
  xvfb_process=
}
at_exit end_virtual_display

# The whole display as a PNG file.
# Not xwd, which shows a window that lies wholly within another as a black box.
take_picture() { import -silent -window root "$1"; }

# The same, once the display has stood still for a while; at the latest after five seconds.
take_settled_picture() {
  local now='' before same=0 turns=0
  while ((same < 3 && turns < 50)); do
    sleep 0.06
    before=$now
    now=$(import -silent -window root rgb:- | cksum)
    same=$([[ $now == "$before" ]] && echo $((same + 1)) || echo 0)
    turns=$((turns + 1))
  done
  take_picture "$1"
}
