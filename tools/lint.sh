#!/bin/bash
# Runs clang-tidy over the project's own sources in both lanes: lint.sh [FILE ...]
#
# Files that know nothing of Windows are read as the host lane compiles them, the others as the
# product lane does. With names given, only those files are read. The files of a folder are read
# as one, for most of the time goes into the system's headers; where they do not go together (two
# give a name different meanings), each is read alone.
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
# clang has to be told where the cross compiler keeps its C++ headers.
headers=$(echo /usr/lib/gcc/i686-w64-mingw32/*-posix/include/c++)
[[ -d $headers ]] || fail "the cross compiler's C++ headers were not found ($headers)"
work=$root/build/lint
rm -rf "$work"
mkdir -p "$work"

# Prints "FOLDER<tab>FILE<tab>OPTIONS" for the files of a lane, this project's only.
files_of() {
  cmake --preset "$1" >"$work/$1.log" 2>&1 </dev/null ||
    fail "$1 could not be configured (build/lint/$1.log)"
  sed -n 's/^ *"\(command\|file\)": "\(.*\)",\{0,1\}$/\2/p' "build/$1/compile_commands.json" |
    paste - - | awk -F '\t' -v OFS='\t' -v root="$root/" -v lane="$1" '
      index($2, root) != 1 || index($2, root "build") == 1 || $2 !~ /\.cpp$/ || seen[$2]++ { next }
      ($2 ~ /_(win|win_test|app_test)\.cpp$|\/tests\/app\//) == (lane == "product") {
        folder = substr($2, length(root) + 1)
        sub(/\/[^\/]*$/, "", folder)
        gsub(/^[^ ]+| -o [^ ]+| -c [^ ]+/, "", $1)
        print folder, $2, $1
      }'
}

# lint LANE NAME OPTIONS FILE ...: reads the files as one; prints findings, each under its file's name.
lint() {
  local lane=$1 name=$2 options=$3 checks=() one=$work/$1-$2.cpp log=$work/$1-$2.log file bad=0
  shift 3
  : >"$one"
  for file in "$@"; do
    echo "$(wc -l <"$one") $file"
    cat "$file" >>"$one"
  done >"$one.starts"
  if [[ $lane == product ]]; then
    options+=" --target=i686-w64-mingw32 -isystem$headers -isystem$headers/i686-w64-mingw32"
    # The Windows headers paste a lower-case "l" to their constants, so that check has no say there.
    checks=(--checks=-cert-dcl16-c)
  fi
  # Without -Wshadow: here, names of one file hide those of another. The build looks for it in each file.
  # shellcheck disable=SC2086
  if "$tidy" --quiet "--header-filter=^$root/" "${checks[@]}" "$one" -- $options -Wno-shadow \
    >"$log" 2>"$log.err" </dev/null; then return 0; fi
  if [[ $# -eq 1 ]] || ! grep -q 'clang-diagnostic-error' "$log"; then
    awk -v one="$one:" '
      NR == FNR { start[NR] = $1; file[NR] = $2; next }
      index($0, one) == 1 {
        place = substr($0, length(one) + 1)
        for (i = 1; i + 1 in start && start[i + 1] < place + 0; ++i);
        sub(/^[0-9]+/, place - start[i], place)
        $0 = file[i] ":" place
      }
      { print }' "$one.starts" "$log"
    return 1
  fi
  for file in "$@"; do
    lint "$lane" "$name-$(basename "$file" .cpp)" "$options" "$file" || bad=1
  done
  return $bad
}

bad=0 count=0
for lane in product host; do
  files_of "$lane" >"$work/$lane"
  while read -r folder; do
    sources=() options=
    while IFS=$'\t' read -r file flags; do
      sources+=("$file") options=$flags
    done < <(awk -F '\t' -v OFS='\t' -v folder="$folder" '$1 == folder { print $2, $3 }' "$work/$lane" |
      if [[ ${#wanted[@]} -eq 0 ]]; then cat; else grep -F -f <(printf '%s\t\n' "${wanted[@]}") || true; fi)
    [[ ${#sources[@]} -gt 0 ]] || continue
    count=$((count + ${#sources[@]}))
    [[ $(jobs -rp | wc -l) -lt $(nproc) ]] || wait -n || bad=1
    lint "$lane" "${folder//\//-}" "$options" "${sources[@]}" &
  done < <(cut -f 1 "$work/$lane" | sort | uniq -c | sort -rn | awk '{ print $2 }') # the longest first
done
while [[ -n $(jobs -p) ]]; do wait -n || bad=1; done

[[ $bad -eq 0 ]] || fail "there are findings"
echo "lint: no findings in $count files"
