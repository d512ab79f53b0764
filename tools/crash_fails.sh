#!/bin/bash
# Sees that tests which crash are reported failed, by ctest and by what test.sh counts:
# crash_fails.sh RUNNER PATH/crashing. RUNNER is what ctest runs programs with in that lane.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
[[ $# -eq 2 && -f $2 ]] || { echo "usage: crash_fails.sh RUNNER PATH/crashing" >&2; exit 2; }
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
wrong=0
if [[ $1 == */winerun ]]; then
  # One for all runs: starting Wine takes longer than they do.
  export WINEPREFIX="$folder/prefix"
  mkdir "$WINEPREFIX"
  "$root/tools/make_prefix.sh" copy "$WINEPREFIX" || exit 1
  trap 'wineserver -k; rm -rf "$folder"' EXIT
fi

# is HOW WANTED FOUND: found are the exit code of ctest, and what is counted: good, bad, skipped.
is() {
  [[ $2 == "$3" ]] || { echo "crash_fails: $1: $3 where $2 is wanted"; wrong=1; }
}
for how in nowhere service case quietly exit debugger; do
  echo "add_test(crashing \"$1\" \"$2\" $how)" >"$folder/CTestTestfile.cmake"
  ctest --test-dir "$folder" -V >"$folder/log" 2>&1
  code=$?
  counts=$(awk -v failures="$folder/failures" -f "$root/tools/count_tests.awk" "$folder/log")
  case $how in
    nowhere | service) is $how "0: 2 0 0" "$code: $counts" ;;
    exit | debugger) is $how "8: 2 1 0" "$code: $counts" ;;
    *) is $how "8: 1 1 0" "$code: $counts" ;;
  esac
done
exit $wrong
