#!/bin/bash
# Runs a native test program and returns its exit code, or 1 where it did not run to its end:
# whole_run.sh PROGRAM [ARGUMENT ...]. Windows programs go through tools/winerun, which looks as well.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
output=$(mktemp) || exit 1
trap 'rm -f "$output"' EXIT
"$@" 2>&1 | tee "$output"
code=${PIPESTATUS[0]}
awk -f "$root/tools/whole_run.awk" "$output" || ((code)) || code=1
exit "$code"
