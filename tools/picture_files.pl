#!/usr/bin/perl
# Writes the picture files of Windows from what the renderer gives:
#   picture_files.pl ico OUT.ico SIZE=PIXELS... [SIZE=FILE.png...]
#   picture_files.pl bmp OUT.bmp WIDTH HEIGHT COLOURS PIXELS
# PIXELS is a file of raw RGBA bytes (straight alpha), top row first.
#
# The bitmaps are indexed, and the fourth byte of every palette entry is the alpha
# of that colour: a quarter of the bytes of a 32-bit bitmap, and no difference to see.
use strict;
use warnings;

sub slurp {
  my ($path) = @_;
  open my $file, '<:raw', $path or die "$path: $!\n";
  local $/;
  return scalar <$file>;
}

sub spill {
  my ($path, $bytes) = @_;
  open my $file, '>:raw', $path or die "$path: $!\n";
  print {$file} $bytes;
  close $file or die "$path: $!\n";
}

# One picture of an icon: header of twice the height, 32-bit rows from the bottom
# up, then the one-bit mask that only old painters look at.
sub icon_picture {
  my ($size, $raw) = @_;
  length($raw) == $size * $size * 4 or die "icon picture of $size: wrong length\n";
  my ($rows, $mask) = ('', '');
  for my $y (reverse 0 .. $size - 1) {
    my $bits = '';
    for my $x (0 .. $size - 1) {
      my ($r, $g, $b, $a) = unpack 'C4', substr $raw, ($y * $size + $x) * 4, 4;
      ($r, $g, $b) = (0, 0, 0) unless $a;
      $rows .= pack 'C4', $b, $g, $r, $a;
      $bits .= $a ? '0' : '1';
    }
    $bits .= '0' x (-$size % 32);
    $mask .= pack 'B*', $bits;
  }
  return pack('VVVvvVVVVVV', 40, $size, 2 * $size, 1, 32, 0, length($rows) + length($mask),
    0, 0, 0, 0) . $rows . $mask;
}

sub write_icon {
  my ($out, @pictures) = @_;
  my ($directory, $data) = ('', '');
  my $offset = 6 + 16 * @pictures;
  for (@pictures) {
    my ($size, $path) = /^(\d+)=(.+)$/ or die "not SIZE=FILE: $_\n";
    my $bytes = $path =~ /\.png$/ ? slurp($path) : icon_picture($size, slurp($path));
    $directory .= pack 'CCCCvvVV', $size % 256, $size % 256, 0, 0, 1, 32, length $bytes,
      $offset + length $data;
    $data .= $bytes;
  }
  spill($out, pack('vvv', 0, 1, scalar @pictures) . $directory . $data);
}

my $what = shift // '';
if ($what eq 'ico') { write_icon(@ARGV) }
else { die "usage: see the head of this file\n" }
