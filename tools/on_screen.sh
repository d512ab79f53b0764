#!/bin/bash
# Runs a Windows program on a screen in memory, in a scratch prefix of its own, and returns its
# exit code: on_screen.sh PROGRAM [ARGUMENT ...]
#
# For programs that need to be seen; tools/winerun runs all others without a screen. DPI is the
# resolution in dots per inch (96), WINERUN_TIMEOUT the time limit in seconds.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

[[ $# -ge 1 ]] || {
  echo "usage: on_screen.sh PROGRAM [ARGUMENT ...]" >&2
  exit 2
}
unset TELLARY_DISPLAY
# shellcheck source=tools/wine_env.sh
source "$root/tools/wine_env.sh"
# shellcheck source=tools/screen.sh
source "$root/tools/screen.sh"

dpi=${DPI:-96}
use_scratch_prefix --dpi "$dpi" --graphics x11
start_screen "$((1280 * dpi / 96))x$((1024 * dpi / 96))" || {
  echo "on_screen: no screen in memory could be started (Xvfb, openbox)" >&2
  exit 1
}
WINEPREFIX=$prefix XDG_DATA_HOME=$prefix/data TELLARY_DISPLAY=$DISPLAY "$root/tools/winerun" "$@"
