#!/bin/sh
# Makes Wine prefixes (folders that each stand for a Windows machine).
#
#   make_prefix.sh template                 the template that scratch prefixes are copied from
#   make_prefix.sh copy DIR [options]       a scratch prefix at DIR, in a fraction of a second
#   make_prefix.sh whole DIR [options]      a prefix of its own at DIR, sharing no file
#   make_prefix.sh sweep                    removes scratch prefixes whose owner was killed
#
# Options: --dpi N (96, 144, 192 ...), --graphics null|x11. The null driver has no screen, but windows,
# focus, keys, menus and printing work, several times faster than with X. A prefix that exists already
# is not changed.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
# shellcheck source=tools/wine_env.sh
. "$root/tools/wine_env.sh"

usage() {
  sed -n '2,/^set -eu/{/^set -eu/d;s/^# \{0,1\}//;p;}' "$0" >&2
  exit 2
}

fail() {
  echo "make_prefix: $*" >&2
  exit 1
}

# The template is made again when this script or Wine's version changes.
stamp_text() {
  cksum <"$root/tools/make_prefix.sh"
  wine --version 2>/dev/null || true
}

# Puts a prefix at $1 when it is complete; otherwise nothing.
build_prefix() {
  command -v wine >/dev/null || fail "Wine is missing; tools/setup.sh installs it"
  mkdir -p "$(dirname "$1")"
  stage=$(mktemp -d "$1.new-XXXXXX")
  trap 'drop_prefix "$stage"' EXIT
  trap 'exit 1' INT TERM HUP
  export WINEPREFIX="$stage"
  timeout -k 5 300 wineboot -i >"$stage.log" 2>&1 </dev/null ||
    fail "Wine could not set up a prefix: $(tail -n 5 "$stage.log")"
  timeout 120 wineserver -w || fail "Wine did not settle after setting up a prefix"

  # Debian's Wine does not look into its own font folder, which holds Tahoma.
  for font in /usr/share/wine/fonts/*.ttf /usr/share/wine/fonts/*.fon; do
    [ ! -e "$font" ] || cp "$font" "$stage/drive_c/windows/Fonts/"
  done
  # Folders such as Documents would otherwise be links into the home folder.
  find "$stage/drive_c/users" -type l | while IFS= read -r link; do
    rm "$link"
    mkdir "$link"
  done

  # LogPixels and Graphics are written here so that `adjust` finds a line to change.
  cat >"$stage/settings.reg" <<'END'
REGEDIT4

[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Graphics"="null"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Arial"="Liberation Sans"
"Times New Roman"="Liberation Serif"
"Courier New"="Liberation Mono"
"Verdana"="DejaVu Sans"
"Segoe UI"="Tahoma"

[HKEY_CURRENT_USER\Control Panel\Desktop]
"LogPixels"=dword:00000060
END
  timeout 60 wine regedit /S "$stage/settings.reg" >>"$stage.log" 2>&1 </dev/null ||
    fail "the settings of the prefix could not be written"
  timeout 60 wineserver -w || fail "Wine did not settle after writing the settings"
  for line in '"Graphics"="null"' '"LogPixels"=dword' '"ShowCrashDialog"=dword' '"Segoe UI"="Tahoma"'; do
    grep -qF "$line" "$stage/user.reg" || fail "a setting of the prefix did not arrive: $line"
  done
  rm -f "$stage/settings.reg" "$stage.log"
  stamp_text >"$stage/.tellary-stamp"
  adjust "$stage"
  rm -rf "$1"
  mv "$stage" "$1"
  trap - EXIT INT TERM HUP
}

# Sets resolution and graphics driver of a prefix that is not in use.
adjust() {
  sed -i -e "s/^\"LogPixels\"=dword:.*/\"LogPixels\"=dword:$(printf %08x "$dpi")/" \
    -e "s/^\"Graphics\"=\"[a-z0-9]*\"/\"Graphics\"=\"$graphics\"/" "$1/user.reg"
}

# Two test programs may start at once on a fresh machine: the second waits for the first.
make_template() (
  mkdir -p "$TELLARY_PREFIXES"
  exec 9>"$template.lock"
  flock 9
  [ "$(cat "$template/.tellary-stamp" 2>/dev/null)" != "$(stamp_text)" ] || exit 0
  echo "Preparing Wine (once, some seconds) ..." >&2
  dpi=96 graphics=null
  build_prefix "$template" 9>&-
)

make_copy() {
  make_template
  [ ! -e "$1/drive_c" ] || fail "$1 is a prefix already"
  mkdir -p "$1/drive_c"
  (cd "$template" && tar -cf - --exclude=./drive_c/windows .) | tar -xf - -C "$1"
  # Windows' own programs and libraries are only read: hard links save time and half a gigabyte.
  # The .ini files beside them are written in place and must not be shared.
  cp -al "$template/drive_c/windows" "$1/drive_c/" 2>/dev/null || {
    rm -rf "$1/drive_c/windows"
    cp -a "$template/drive_c/windows" "$1/drive_c/"
  }
  for file in "$template"/drive_c/windows/*.ini; do
    [ ! -e "$file" ] || cp -a --remove-destination "$file" "$1/drive_c/windows/"
  done
  adjust "$1"
}

sweep() {
  for dir in "$TELLARY_PREFIXES"/run-*; do
    [ -d "$dir" ] || continue
    owner=${dir##*/run-}
    owner=${owner%%-*}
    kill -0 "$owner" 2>/dev/null || drop_prefix "$dir"
  done
}

[ $# -ge 1 ] || usage
action=$1
shift
dir=
dpi=96
graphics=null
while [ $# -gt 0 ]; do
  case $1 in
    --dpi) [ $# -ge 2 ] || usage; dpi=$2; shift 2 ;;
    --graphics) [ $# -ge 2 ] || usage; graphics=$2; shift 2 ;;
    -*) usage ;;
    *) [ -z "$dir" ] || usage; dir=$1; shift ;;
  esac
done
case $dpi in '' | *[!0-9]*) usage ;; esac
case $graphics in null | x11) ;; *) usage ;; esac

case $action in
  template) [ -z "$dir" ] || usage; make_template ;;
  copy) [ -n "$dir" ] || usage; make_copy "$dir" ;;
  whole)
    [ -n "$dir" ] || usage
    mkdir -p "$(dirname "$dir")"
    exec 9>"$dir.lock"
    flock 9
    [ -e "$dir/.tellary-stamp" ] || build_prefix "$dir" 9>&-
    ;;
  sweep) sweep ;;
  *) usage ;;
esac
