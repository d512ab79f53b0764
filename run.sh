#!/bin/bash
# Builds Tellary and starts it, on a fresh Debian 12 too: run.sh [DOCUMENT]
#
# With a display the program opens there. Without one it runs on a screen in memory, and a
# picture of it is saved as build/screenshot.png. Settings are kept in the Wine prefix
# ~/.local/share/tellary/prefix, or the one that TELLARY_PREFIX names.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)

say() { echo "run: $*"; }
fail() {
  echo "run: $*" >&2
  exit 1
}

[[ $# -le 1 ]] || fail "usage: run.sh [DOCUMENT]"
document=
if [[ $# -eq 1 ]]; then
  [[ -f $1 ]] || fail "there is no document '$1'"
  document=$(realpath -- "$1")
fi
cd "$root"

tools/setup.sh run
say "building"
mkdir -p build
if ! { cmake --preset product && cmake --build --preset product --target Tellary; } \
  >build/run-build.log 2>&1 </dev/null; then
  tail -n 40 build/run-build.log >&2
  fail "the program could not be built; all of it is in build/run-build.log"
fi

# A display that does not answer is ignored.
host_display=${DISPLAY:-}
if [[ -n $host_display ]] && ! xdotool getdisplaygeometry >/dev/null 2>&1; then
  say "the display $host_display cannot be reached"
  host_display=
fi
TELLARY_DISPLAY=$host_display
source tools/wine_env.sh
source tools/screen.sh

if [[ -n ${TELLARY_PREFIX:-} ]]; then
  prefix=$(realpath -m -- "$TELLARY_PREFIX")
elif [[ -n ${XDG_DATA_HOME:-${HOME:-}} ]]; then
  prefix=${XDG_DATA_HOME:-$HOME/.local/share}/tellary/prefix
else
  prefix=$root/build/run-prefix
fi
if [[ ! -e $prefix ]]; then
  say "preparing Wine in $prefix (once, some seconds)"
fi
tools/make_prefix.sh whole "$prefix" --graphics x11
export WINEPREFIX=$prefix

program=
cleanup() {
  if [[ -z $host_display ]]; then
    stop_prefix "$prefix"
    stop_screen
  fi
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

if [[ -z $host_display ]]; then
  start_screen 1280x1024 || fail "no screen in memory could be started (Xvfb, openbox)"
fi
tail_words=()
if [[ -n $document ]]; then
  document_tail "$document" || fail "Wine cannot name the document '$document'"
fi

log=$root/build/run.log
wine build/product/Tellary.exe "${tail_words[@]}" >"$log" 2>&1 </dev/null &
program=$!

if [[ -n $host_display ]]; then
  say "Tellary is open on $host_display"
  code=0
  wait "$program" || code=$?
  [[ $code -eq 0 ]] || fail "Tellary ended with code $code; what it wrote is in build/run.log"
  exit 0
fi

if ! wait_for_window 60 "$program"; then
  tail -n 20 "$log" >&2
  fail "Tellary showed no window; what it wrote is in build/run.log"
fi
take_picture build/screenshot.png || fail "the picture of the screen could not be saved"
kill -0 "$program" 2>/dev/null || fail "Tellary ended at once; what it wrote is in build/run.log"
close_program "$program" || say "Tellary did not close by itself and was ended"
say "there is no display here: a picture of Tellary is in build/screenshot.png"
