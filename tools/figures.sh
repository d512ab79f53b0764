#!/bin/bash
# Measures the program with a full document (32,767 contacts) and prints one table: each figure, its
# floor measured in the same run, their ratio, and the ratio allowed. Figures are medians of nine
# rounds. The exit code is zero only if all ratios are allowed.
#
#   figures.sh [--no-build] [PART ...]      PART: reading saving window printing size start; all without
#
# The programs run on a screen in memory with a window manager, in a Wine prefix of their own.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root" || exit 1

build=yes
parts=()
for word in "$@"; do
  case $word in
    --no-build) build=no ;;
    reading | saving | window | start | printing | size) parts+=("$word") ;;
    *) sed -n '2,/^set -uo/{/^set -uo/d;s/^# \{0,1\}//;p;}' "$0" >&2; exit 2 ;;
  esac
done
[[ ${#parts[@]} -gt 0 ]] || parts=(reading saving window printing size start)

unset TELLARY_DISPLAY
source "$root/tools/wine_env.sh"
source "$root/tools/screen.sh"

fail() {
  echo "figures: $*" >&2
  exit 1
}

native=$root/build/bench
product=$root/build/product-bench
if [[ $build == yes ]]; then
  mkdir -p build
  for preset in bench product-bench; do
    { cmake --preset "$preset" && cmake --build --preset "$preset"; } \
      >"build/figures-$preset.log" 2>&1 </dev/null || fail "$preset was not built (build/figures-$preset.log)"
  done
fi

use_scratch_prefix --graphics x11 || fail "Wine could not be prepared"
work=$prefix/work # goes with the prefix
mkdir "$work"
start_screen 1280x1024 || fail "no screen in memory could be started (Xvfb, openbox)"
export WINEPREFIX=$prefix TELLARY_DISPLAY=$DISPLAY

# Documents are put on the prefix's own drive, where their paths have no blanks.
full=$prefix/drive_c/full.tly
"$native/generate_contacts" 32767 1 "$full" && "$native/generate_contacts" 1000 1 "$work/thousand.tly" ||
  fail "the documents could not be made"
cp "$work/thousand.tly" "$prefix/drive_c/thousand.tly"

table=$work/figures
details=$root/build/figures.log # with the rounds, where a program tells them
: >"$details"
: >"$table"
run() {
  (cd "$work" && WINERUN_TIMEOUT=900 "$root/tools/winerun" "$@") >"$work/out" 2>&1 ||
    { cat "$work/out" >&2; fail "$1 failed"; }
  tr -d '\r' <"$work/out" | tee -a "$table" >>"$details"
}

# From here on everything runs on one processor, the screen and Wine itself too. Several processes take
# part in a start, and the time that one processor takes to wake up another differs from hour to hour,
# threefold on some machines.
use_one_processor() {
  wineserver -k || true
  stop_screen
  taskset -p -c "$(taskset -p -c $$ | sed 's/.*[^0-9]//')" $$ >/dev/null ||
    fail "the processor could not be chosen"
  start_screen 1280x1024 || fail "no screen in memory could be started (Xvfb, openbox)"
  export TELLARY_DISPLAY=$DISPLAY
}

for part in "${parts[@]}"; do
  case $part in
    reading)
      (cd "$work" && "$native/document_bench" thousand.tly --benchmark_filter='read a full document' \
        --benchmark_format=csv 2>/dev/null) |
        awk -F, '/_median/ { printf "figure\treading / read + line ends, native (ms)\t%.3f\t%.3f\t%.3f\t1.1\n", $NF, $(NF-2), $(NF-1) }' >>"$table"
      (cd "$work" && "$root/tools/winerun" "$product/bench_reading_win.exe" thousand.tly) |
        awk '/^floor/ { printf "figure\treading / read + line ends (ms)\t%s\t%s\t%s\t1.1\n", $5, $2, $8 }' | tr -d '\r' >>"$table"
      ;;
    saving) run "$product/bench_saving_win.exe" 'C:\full.tly' ;;
    window) run "$product/bench_window_win.exe" 'C:\full.tly' 'C:\thousand.tly' ;;
    start)
      cp "$product/Tellary.exe" "$product/bench_empty_window_win.exe" "$prefix/drive_c/"
      use_one_processor
      run "$product/bench_start_win.exe" 'C:\Tellary.exe' 'C:\bench_empty_window_win.exe' 'C:\full.tly'
      ;;
    printing) run "$product/bench_printing_win.exe" ;;
    size)
      size=$(stat -c %s "$product/Tellary.exe")
      awk -v size="$size" 'BEGIN { printf "figure\tTellary.exe / 800 KB (bytes)\t%d\t819200\t%.3f\t1\n", size, size / 819200 }' >>"$table"
      ;;
  esac
done

printf '%-50s %12s %12s %8s %8s\n' "figure / held against" measured against ratio limit
awk -F '\t' '
  $1 == "figure" {
    good = $5 <= $6
    missed += !good
    printf "%-50s %12s %12s %8s %8s%s\n", $2, $3, $4, $5, $6 + 0, good ? "" : "  MISSED"
    told++
  }
  END { exit missed > 0 || told == 0 }' "$table"
