#!/bin/bash
# Runs the tests that need a full disk on one: full_disk.sh PATH/tests_win.exe
#
# The disk is a small file system in memory, in a mount namespace of its own that goes away
# with this script; no rights are needed where the system lets users have such namespaces.
# Where it does not, prints the reason and returns 77.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

if [[ ${1:-} != --inside ]]; then
  [[ $# -eq 1 && -f $1 ]] || { echo "usage: full_disk.sh PATH/tests_win.exe" >&2; exit 2; }
  disk=$(mktemp -d) || exit 1
  trap 'rmdir "$disk"' EXIT
  if ! reason=$(unshare -rm mount -t tmpfs -o size=1m none "$disk" 2>&1); then
    echo "full_disk: skipped, no file system can be mounted here: $reason" >&2
    exit 77
  fi
  unshare -rm "$0" --inside "$disk" "$(realpath -- "$1")"
  exit
fi

mount -t tmpfs -o size=24m none "$2" || exit 1
export TELLARY_SMALL_DISK="Z:${2//\//\\}"
log=$(mktemp)
"$root/tools/winerun" "$3" --gtest_filter='*FullDisk*' >"$log"
code=$?
cat "$log"
# No success if no test ran or any was skipped.
grep -q '\[       OK \]' "$log" || code=1
rm -f "$log"
exit $code
