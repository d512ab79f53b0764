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

# icon NAME SIZE...: an .ico; 256 goes in as PNG, the others as 32-bit bitmaps.
icon() {
  name=$1
  shift
  set -- "$@" --
  while [ "$1" != -- ]; do
    size=$1
    shift
    base=$scratch/$name-$size
    rsvg-convert -w "$size" -h "$size" "$(drawing "$name" "$size")" -o "$base.png"
    if [ "$size" = 256 ]; then
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

icon tellary 16 20 24 32 40 48 64 256
icon contact 16 20 24 32 48
icon document 16 20 24 32 40 48 64 256
