#!/bin/sh
# Renders every picture of the program from app/icons/src into the files that the
# resources take. The results are committed, so that a build needs no renderer:
# run this after changing a drawing. Needs rsvg-convert, ImageMagick and perl.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
icons=$here/../app/icons
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# NAME.SIZE.svg, where it exists, is a drawing made for that size alone.
drawing() {
  if [ -f "$icons/src/$1.$2.svg" ]; then echo "$icons/src/$1.$2.svg"; else echo "$icons/src/$1.svg"; fi
}

# icon NAME SIZE...: an .ico; 64 and 256 go in as PNG, which keeps them small, the others as
# 32-bit bitmaps.
icon() {
  name=$1
  shift
  set -- "$@" --
  while [ "$1" != -- ]; do
    size=$1
    shift
    base=$scratch/$name-$size
    rsvg-convert -w "$size" -h "$size" "$(drawing "$name" "$size")" -o "$base.png"
    if [ "$size" -ge 64 ]; then
      convert "$base.png" -strip -define png:compression-level=9 -define png:compression-filter=5 \
        -define png:exclude-chunks=all "PNG32:$base.small.png"
      set -- "$@" "$size=$base.small.png"
    else
      convert "$base.png" -depth 8 "RGBA:$base.rgba"
      set -- "$@" "$size=$base.rgba"
    fi
  done
  shift
  perl "$here/picture_files.pl" ico "$icons/$name.ico" "$@"
}

icon tellary 16 20 24 32 48 256
icon contact 16 32
icon document 16 20 24 32 48 256

# The pictures of the commands in one row, in the order that library/images.h has.
keys=$(sed -n '/imageKeys{/,/};/s/[^"]*"\([A-Z ]*\)"[^"]*/\1;/gp' "$here/../library/images.h" | tr -d '\n')
strip() {
  size=$1
  count=0
  set --
  IFS=';'
  for key in $keys; do
    name=$(echo "$key" | tr 'A-Z ' 'a-z_')
    # The drawings are made on a grid of 16; a size that is no multiple of it is fitted.
    if [ -f "$icons/src/$name.$size.svg" ]; then
      fitted=$icons/src/$name.$size.svg
    else
      fitted=$scratch/$name-$size.svg
      perl "$here/picture_files.pl" fit "$size" "$icons/src/$name.svg" "$fitted"
    fi
    rsvg-convert -w "$size" -h "$size" "$fitted" -o "$scratch/$name-$size.png"
    set -- "$@" "$scratch/$name-$size.png"
    count=$((count + 1))
  done
  unset IFS
  convert "$@" +append -depth 8 "RGBA:$scratch/strip.rgba"
  perl "$here/picture_files.pl" bmp "$icons/toolbar$size.bmp" $((count * size)) "$size" 8 "$scratch/strip.rgba"
}
for size in 16 20 24 32; do strip "$size"; done

# logo DPI WIDTH HEIGHT
logo() {
  rsvg-convert -w "$2" -h "$3" "$icons/src/logo.svg" -o "$scratch/logo.png"
  convert "$scratch/logo.png" -depth 8 "RGBA:$scratch/logo.rgba"
  perl "$here/picture_files.pl" bmp "$icons/logo$1.bmp" "$2" "$3" 4 "$scratch/logo.rgba"
}
logo 96 200 60
logo 144 300 90
logo 192 400 120
