#!/bin/bash
# Builds everything and runs every test, on a fresh Debian 12 too: test.sh [--quick]
#
#   --quick   the native tests only, without Wine, fuzzing and clang-tidy
#
# The last line is "N passed, N failed" and counts test cases and fuzz targets; a lane that cannot be
# built counts as one failure. The exit code is zero only if everything was built, at least one test
# ran, none failed, the sources are formatted and clang-tidy has no findings.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
cd "$root" || exit 1
export LC_ALL=C.UTF-8

quick=no
case "$#:${1:-}" in
  0:) ;;
  1:--quick) quick=yes ;;
  *)
    echo "usage: test.sh [--quick]" >&2
    exit 2
    ;;
esac

passed=0 failed=0 skipped=0 troubles=()
jobs=$(nproc)
results=$root/build/results

say() { echo "test: $*"; }
trouble() {
  echo "test: $*" >&2
  troubles+=("$*")
}
finish() {
  local line
  for line in "${troubles[@]}"; do
    echo "test: trouble: $line" >&2
  done
  [[ $skipped -eq 0 ]] || say "$skipped skipped"
  # This has to be the last line of all output.
  echo "$passed passed, $failed failed"
  [[ $failed -eq 0 && $passed -gt 0 && ${#troubles[@]} -eq 0 ]]
  exit
}

# Configures and builds PRESET [TARGET ...]
build() {
  local preset=$1 log=$results/$1-build.log
  shift
  local targets=()
  [[ $# -eq 0 ]] || targets=(--target "$@")
  say "building $preset"
  if ! { cmake --preset "$preset" && cmake --build --preset "$preset" -j "$jobs" "${targets[@]}"; } \
    >"$log" 2>&1 </dev/null; then
    grep -nE 'error|Error|FAILED' "$log" | head -n 40 >&2
    tail -n 20 "$log" >&2
    # Counted as failed; otherwise the last line could say "0 failed" although tests are missing.
    failed=$((failed + 1))
    trouble "$preset was not built (${log#"$root/"})"
    return 1
  fi
  ! grep -q 'warning:' "$log" || grep 'warning:' "$log" | head -n 20
}

# Runs the tests of PRESET with the given arguments of ctest, and counts them.
run_tests() {
  local preset=$1 log=$results/$1-tests.log code=0 ok bad left
  shift
  say "testing $preset"
  rm -f "$results/$preset-failures.log"
  ctest --test-dir "build/$preset" -V -j "$jobs" --timeout 1800 "$@" >"$log" 2>&1 </dev/null || code=$?
  read -r ok bad left < <(awk -v failures="$results/$preset-failures.log" -f tools/count_tests.awk "$log")
  if [[ -s $results/$preset-failures.log ]]; then
    tail -n 300 "$results/$preset-failures.log"
  fi
  grep -E '^ *[0-9]+/[0-9]+ Test +#' "$log"
  say "$preset: $ok good, $bad bad (all of it is in ${log#"$root/"})"
  passed=$((passed + ok)) failed=$((failed + bad)) skipped=$((skipped + left))
  [[ $code -eq 0 || $bad -gt 0 ]] || trouble "ctest failed on $preset (${log#"$root/"})"
}

# The project's sources: the files that git tracks; without git, all files in its folders.
sources() {
  git ls-files '*.cpp' '*.h' 2>/dev/null | grep . ||
    find app document mainwindow printing pagesetup library dialogs controls paper windowing files values tests fuzz \
      bench tools -name '*.cpp' -o -name '*.h' 2>/dev/null
}

check_format() {
  local formatter list
  formatter=$(command -v clang-format-14 || command -v clang-format) || {
    trouble "clang-format is missing"
    return
  }
  say "checking the format"
  list=$(sources | while IFS= read -r file; do [[ ! -f $file ]] || echo "$file"; done)
  echo "$list" | tr '\n' '\0' | xargs -0r "$formatter" --dry-run -Werror ||
    trouble "some sources are not in format (clang-format -i puts them right)"
}

check_lint() {
  say "reading the sources with clang-tidy"
  tools/lint.sh >"$results/lint.log" 2>&1 && return
  tail -n 60 "$results/lint.log"
  trouble "clang-tidy has findings (build/results/lint.log)"
}

tools/setup.sh test || {
  trouble "the machine could not be set up"
  finish
}
mkdir -p "$results"
if command -v ccache >/dev/null; then
  export CMAKE_CXX_COMPILER_LAUNCHER=${CMAKE_CXX_COMPILER_LAUNCHER-ccache}
fi
export ASAN_OPTIONS=detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1:check_initialization_order=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

check_format
say "checking the imports between rooms"
tools/check_rooms.sh || trouble "an import goes against the drawing in ARCHITECTURE.md"
if build host; then run_tests host; fi
if [[ $quick == no ]]; then
  if build product; then
    tools/make_prefix.sh sweep
    tools/make_prefix.sh template || trouble "Wine could not be prepared"
    run_tests product
    if build product-checked; then run_tests product-checked -R '^win$'; fi
  fi
  # Only the fuzz targets; the native tests have run in the host lane.
  targets=()
  for file in fuzz/*_fuzz.cpp; do
    [[ ! -f $file ]] || targets+=("$(basename "$file" .cpp)")
  done
  if [[ ${#targets[@]} -gt 0 ]] && build fuzz "${targets[@]}"; then
    run_tests fuzz -L fuzz
  fi
  check_lint
fi
finish
