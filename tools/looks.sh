#!/bin/bash
# Draws every form into a picture and compares it with the one in tests/looks:
#
#   looks.sh PATH/tests_win.exe            fails where a form looks different
#   looks.sh --renew PATH/tests_win.exe    makes the pictures anew, after a change that is meant
#
# Without a screen and without themes, at 96 and 192 dots per inch. What was drawn is kept in
# build/looks, and beside it, as NAME-diff.png, where a picture differs.
set -uo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
renew=no
if [[ ${1:-} == --renew ]]; then
  renew=yes
  shift
fi
[[ $# -eq 1 && -f $1 ]] || { echo "usage: looks.sh [--renew] PATH/tests_win.exe" >&2; exit 2; }
tests=$(realpath -- "$1")
drawn=$root/build/looks
rm -rf "$drawn"
mkdir -p "$drawn" "$root/tests/looks"
# Letters are smoothed a little differently from one library of fonts to the next.
tolerance=(-fuzz 12%)
most=8 # pixels that may differ by more than that
failures=0

fail() {
  echo "looks: $*"
  failures=$((failures + 1))
}

draw() {
  local prefix=$drawn/prefix-$1 list
  mkdir "$prefix"
  "$root/tools/make_prefix.sh" copy "$prefix" --dpi "$1" || exit 1
  # Themes differ from one Wine to the next.
  WINEPREFIX=$prefix "$root/tools/winerun" reg add \
    'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' /v ThemeActive /d 0 /f >/dev/null
  mkdir "$drawn/$1"
  list="Z:${drawn//\//\\}\\$1"
  WINEPREFIX=$prefix TELLARY_LOOKS=$list "$root/tools/winerun" "$tests" \
    --gtest_filter='Looks.*' >"$drawn/$1.log" && grep -q '\[  PASSED  \] 1 test' "$drawn/$1.log" ||
    { cat "$drawn/$1.log"; fail "the forms could not be drawn at $1 dpi"; }
  WINEPREFIX=$prefix wineserver -k 2>/dev/null
  rm -rf "$prefix"
}

# compare_with REFERENCE PICTURE DIFFERENCE
compare_with() {
  local count
  [[ -f $1 ]] || { fail "there is no ${1#"$root"/} (looks.sh --renew makes it)"; return; }
  count=$(compare -metric AE "${tolerance[@]}" "$1" "$2" "$3" 2>&1)
  [[ $count =~ ^[0-9]+$ && $count -le $most ]] && { rm -f "$3"; return; }
  fail "${1#"$root"/} differs in $count pixels (${3#"$root"/})"
}

for dpi in 96 192; do
  draw "$dpi"
  for picture in "$drawn/$dpi"/*.bmp; do
    [[ -f $picture ]] || continue
    name=$(basename "$picture" .bmp)-$dpi
    if [[ $renew == yes ]]; then
      convert "$picture" -strip -define png:compression-level=9 -colors 256 "$root/tests/looks/$name.png"
    else
      compare_with "$root/tests/looks/$name.png" "$picture" "$drawn/$name-diff.png"
    fi
  done
done
[[ $renew == yes ]] || for reference in "$root"/tests/looks/*.png; do
  name=$(basename "$reference" .png)
  [[ -f $drawn/${name##*-}/${name%-*}.bmp ]] || fail "nothing was drawn for ${reference#"$root"/}"
done
[[ $failures -eq 0 ]]
