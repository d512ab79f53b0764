#!/bin/bash
# Saves to files of many permissions and through links, and checks the files from outside of Wine:
# host_files.sh PATH/tests_win.exe
#
# Whatever the user's mask is, a document keeps its permissions, its links and, where it has several
# names, its inode; a new document gets the permissions that the mask allows.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
[[ $# -eq 1 && -f $1 ]] || { echo "usage: host_files.sh PATH/tests_win.exe" >&2; exit 2; }
tests=$(realpath -- "$1")
folder=$(mktemp -d) || exit 1
trap 'rm -rf "$folder"' EXIT
export WINEPREFIX="$folder/prefix"
mkdir "$WINEPREFIX"
"$root/tools/make_prefix.sh" copy "$WINEPREFIX" || exit 1
failures=0

# is WHAT EXPECTED FOUND
is() {
  [[ $2 == "$3" ]] && return
  echo "host_files: umask $mask: $1: $3 where $2 is wanted"
  failures=$((failures + 1))
}
# Prints paths below the current folder as Wine spells them.
save() {
  local list='' path
  for path in "$@"; do list+="Z:$PWD/$path;"; done
  TELLARY_HOST_FILES="${list//\//\\}" "$root/tools/winerun" "$tests" \
    --gtest_filter='HostFiles.*' >log && [[ $(grep -c '\[       OK \]' log) == 2 ]] && return
  cat log
  failures=$((failures + 1))
}
mode() { stat -c %a "$1"; }

for mask in 022 002 077 027 007; do
  umask "$mask"
  mkdir -p "$folder/$mask/real" "$folder/$mask/other"
  cd "$folder/$mask" || exit 1
  modes=(644 600 640 664 666 660 604 700 755)
  for wanted in "${modes[@]}"; do
    echo old >"mode$wanted"
    chmod "$wanted" "mode$wanted"
  done
  for name in soft dangling folder hard; do [[ $name == dangling ]] || echo old >"real/$name"; done
  chmod 640 real/soft
  ln -s ../real/soft other/soft
  ln -s ../real/dangling other/dangling
  ln -s real linked
  ln real/hard other/hard
  hard=$(stat -c %i real/hard)
  # While a document is being saved, its temporary file must not allow the group more.
  echo old >private
  chmod 600 private
  echo new >standin
  export TELLARY_HOST_FROM="Z:${PWD//\//\\}\\private" TELLARY_HOST_TO="Z:${PWD//\//\\}\\standin"
  save "${modes[@]/#/mode}" other/soft other/dangling linked/folder other/hard fresh

  for wanted in "${modes[@]}"; do
    is "permissions" "$wanted" "$(mode "mode$wanted")"
    is "mode$wanted" saved "$(cat "mode$wanted")"
  done
  is "rights of group and others" 0 $((0$(mode standin) & 077))
  is "permissions behind a link" 640 "$(mode real/soft)"
  for name in soft dangling; do
    is "link $name" "../real/$name" "$(readlink "other/$name" || echo 'a file')"
  done
  for name in soft dangling folder hard; do is "real/$name" saved "$(cat "real/$name")"; done
  is "file of two names" "$hard 2" "$(stat -c '%i %h' other/hard)"
  is "a new file" "$(printf '%o' $((0666 & ~mask)))" "$(mode fresh)"
  is "files left" "${#modes[@]}" "$(find . -maxdepth 1 -type f -name 'mode*' | wc -l)"
  is "temporary files" 0 "$(find . -name '~*' -o -name '*.old*' | wc -l)"
  wineserver -k # files are made with the mask that it was started with
done
[[ $failures -eq 0 ]] && echo "host_files: all as they were"
exit $((failures > 0))
