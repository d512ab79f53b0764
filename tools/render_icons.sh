#!/bin/sh
# Renders every picture of the program from app/icons/src into the files that the
# resources take. The results are committed, so that a build needs no renderer:
# run this after changing a drawing.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
icons=$here/../app/icons
"$here/setup.sh" render
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# render SIZE OUT.png DRAWING [HEIGHT]
render() {
  rsvg-convert -w "$1" -h "${4:-$1}" "$3" -o "$2"
}

# icon NAME SIZE...: an .ico; what is larger than 48 goes in as PNG, which keeps it small, the
# others as 32-bit bitmaps. NAME.SIZE.svg, where it exists, is a drawing made for that size alone.
icon() {
  name=$1
  shift
  set -- "$@" --
  while [ "$1" != -- ]; do
    drawing=$icons/src/$name.$1.svg
    [ -f "$drawing" ] || drawing=$icons/src/$name.svg
    picture=$scratch/$name-$1.png
    render "$1" "$picture" "$drawing"
    if [ "$1" -gt 48 ]; then
      convert "$picture" -strip -define png:compression-level=9 -define png:compression-filter=5 \
        -define png:exclude-chunks=all "PNG32:$picture"
      set -- "$@" --raw="$picture"
    else
      set -- "$@" "$picture"
    fi
    shift
  done
  shift
  icotool --create --output="$icons/$name.ico" "$@"
}

icon tellary 16 20 24 32 48 256
icon contact 16 32
icon document 16 20 24 32 48 256

# few COLOURS PICTURE: chooses so many colours for it, in place
few() {
  pngquant --speed 1 --nofs --strip --force --ext .png "$1" "$2"
}

# The pictures of the commands in one row, in the order that library/images.h has.
keys=$(sed -n '/imageKeys{/,/};/s/[^"]*"\([A-Z ]*\)"[^"]*/\1;/gp' "$here/../library/images.h" | tr -d '\n')
strip() {
  size=$1
  set --
  IFS=';'
  for key in $keys; do
    name=$(echo "$key" | tr 'A-Z ' 'a-z_')
    # The drawings are made on a grid of 16; a size that is no multiple of it is fitted.
    drawing=$icons/src/$name.$size.svg
    if [ ! -f "$drawing" ]; then
      drawing=$scratch/$name.svg
      perl "$here/picture_files.pl" fit "$size" <"$icons/src/$name.svg" >"$drawing"
    fi
    picture=$scratch/$name-$size.png
    render "$size" "$picture" "$drawing"
    set -- "$@" "$picture"
  done
  unset IFS
  row=$scratch/strip$size.png
  convert "$@" +append "PNG32:$row"
  few 256 "$row"
  convert "$row" -depth 8 RGBA:- |
    perl "$here/picture_files.pl" bmp $(($# * size)) "$size" >"$icons/toolbar$size.bmp"
}
for size in 16 20 24 32; do strip "$size"; done

# logo DPI WIDTH HEIGHT
logo() {
  render "$2" "$scratch/logo.png" "$icons/src/logo.svg" "$3"
  few 16 "$scratch/logo.png"
  convert "$scratch/logo.png" -compress none "BMP3:$icons/logo$1.bmp"
}
logo 96 200 60
logo 144 300 90
logo 192 400 120
