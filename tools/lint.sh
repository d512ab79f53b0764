#!/bin/bash
# Runs clang-tidy over the project's own sources in both lanes: lint.sh [FILE ...]
#
# Files that know nothing of Windows are read as the host lane compiles them, the others as the
# product lane does. With names given, only those files are read.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
export LC_ALL=C.UTF-8

fail() {
  echo "lint: $*" >&2
  exit 1
}

wanted=()
for file in "$@"; do
  [[ -f $file ]] || fail "there is no file '$file'"
  wanted+=("$(realpath -- "$file")")
done

tools/setup.sh test
tidy=$(command -v clang-tidy-14 || command -v clang-tidy) || fail "clang-tidy is missing"
mkdir -p build
for preset in host product; do
  cmake --preset "$preset" >"build/lint-$preset.log" 2>&1 </dev/null ||
    fail "$preset could not be configured (build/lint-$preset.log)"
done

# Prints the files that a lane compiles, this project's only.
compiled() {
  sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' "build/$1/compile_commands.json" |
    grep "^$root/" | grep -v "^$root/build" | sort -u
}
# Keeps the wanted ones of the names read.
only_wanted() {
  if [[ ${#wanted[@]} -eq 0 ]]; then
    cat
  else
    grep -xF -f <(printf '%s\n' "${wanted[@]}") || true
  fi
}

# clang has to be told where the cross compiler keeps its C++ headers.
headers=$(echo /usr/lib/gcc/i686-w64-mingw32/*-posix/include/c++)
[[ -d $headers ]] || fail "the cross compiler's C++ headers were not found ($headers)"

bad=0
windows_names='_(win|win_test|app_test)\.cpp$|/tests/app/'
# lint LANE FILES [clang-tidy option ...]
lint() {
  local lane=$1 files=$2
  shift 2
  [[ -n $files ]] || return 0
  echo "lint: $(echo "$files" | wc -l) files of the $lane lane"
  echo "$files" | tr '\n' '\0' |
    xargs -0 -n 1 -P "$(nproc)" "$tidy" --quiet -p "build/$lane" "$@" 2>"build/lint-$lane.log" || bad=1
  # The counts of suppressed warnings are of no interest, anything else is.
  grep -vE 'warnings? (generated|treated as errors)|^Suppressed|^Use -header-filter' "build/lint-$lane.log" >&2 || true
}

lint host "$(compiled host | grep -vE "$windows_names" | only_wanted)"
# The Windows headers paste a lower-case "l" to their constants, so that check has no say there.
lint product "$(compiled product | grep -E "$windows_names" | only_wanted)" \
  --checks=-cert-dcl16-c --extra-arg-before=--target=i686-w64-mingw32 \
  "--extra-arg=-isystem$headers" "--extra-arg=-isystem$headers/i686-w64-mingw32"

[[ $bad -eq 0 ]] || fail "there are findings"
echo "lint: no findings"
