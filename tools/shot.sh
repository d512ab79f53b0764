#!/bin/bash
# Takes a picture of the built program, on a screen and in a Wine prefix of its own.
#
#   shot.sh [--dpi N] [--size WxH] [--out FILE.png] [--do COMMAND] [DOCUMENT]
#
#   --dpi N       dots per inch: 96 (the default), 144, 192 ...
#   --size WxH    size of the screen; by default 1280x1024, grown with the dots per inch
#   --out FILE    where the picture goes; by default build/shot.png
#   --do COMMAND  bash commands run before the picture, with DISPLAY, WINEPREFIX and WINDOW
#                 (the X number of the main window) set: 'xdotool key alt+f; sleep 1'
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

fail() {
  echo "shot: $*" >&2
  exit 1
}
usage() {
  sed -n '2,/^set -euo/{/^set -euo/d;s/^# \{0,1\}//;p;}' "$0" >&2
  exit 2
}

dpi=96 size='' out=$root/build/shot.png hook='' document=''
while [[ $# -gt 0 ]]; do
  case $1 in
    --dpi | --size | --out | --do)
      [[ $# -ge 2 ]] || usage
      case $1 in
        --dpi) dpi=$2 ;;
        --size) size=$2 ;;
        --out) out=$(realpath -m -- "$2") ;;
        --do) hook=$2 ;;
      esac
      shift 2
      ;;
    -*) usage ;;
    *)
      [[ -z $document ]] || usage
      [[ -f $1 ]] || fail "there is no document '$1'"
      document=$(realpath -- "$1")
      shift
      ;;
  esac
done
[[ $dpi =~ ^[0-9]+$ ]] || usage
: "${size:=$((1280 * dpi / 96))x$((1024 * dpi / 96))}"
[[ $size =~ ^[0-9]+x[0-9]+$ ]] || usage
program_file=${TELLARY_EXE:-$root/build/product/Tellary.exe}
[[ -f $program_file ]] || fail "the program is not built: cmake --build --preset product --target Tellary"

unset TELLARY_DISPLAY
source "$root/tools/wine_env.sh"
source "$root/tools/screen.sh"

use_scratch_prefix --dpi "$dpi" --graphics x11
export WINEPREFIX=$prefix XDG_DATA_HOME=$prefix/data
log=$root/build/shot.log

start_screen "$size" || fail "no screen in memory could be started (Xvfb, openbox)"
tail_words=()
if [[ -n $document ]]; then
  document_tail "$document" || fail "Wine cannot name the document '$document'"
fi
wine "$program_file" "${tail_words[@]}" >"$log" 2>&1 </dev/null &
program=$!
wait_for_window 60 "$program" || fail "the program showed no window; what it wrote is in build/shot.log"

if [[ -n $hook ]]; then
  sleep 0.5
  WINDOW=$window timeout 120 bash -c "$hook" || fail "the command before the picture failed"
fi
take_picture "$out" || fail "the picture of the screen could not be saved"
kill -0 "$program" 2>/dev/null || echo "shot: the program has ended by now" >&2
echo "$out"
