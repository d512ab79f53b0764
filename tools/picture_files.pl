#!/usr/bin/perl
# Writes the picture files of Windows from what the renderer gives:
#   picture_files.pl ico OUT.ico SIZE=PIXELS... [SIZE=FILE.png...]
#   picture_files.pl bmp OUT.bmp WIDTH HEIGHT BITS PIXELS
# and, before that, fits a drawing made on a grid of 16 to another size, so that
# its edges fall on whole pixels:
#   picture_files.pl fit SIZE IN.svg OUT.svg
# PIXELS is a file of raw RGBA bytes (straight alpha), top row first.
#
# The bitmaps are indexed, and the fourth byte of every palette entry is the alpha
# of that colour: a quarter of the bytes of a 32-bit bitmap, and no difference to see.
use strict;
use warnings;
use POSIX qw(floor);

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

# The palette of at most `limit` colours, and the place in it of each colour of the
# picture. Colours are compared as they show, weighted by their alpha; a picture
# with few enough colours keeps each of them exactly.
sub choose_palette {
  my ($limit, $seen) = @_;
  my @colours = sort { $seen->{$b} <=> $seen->{$a} || $a cmp $b } keys %$seen;
  return (\@colours, { map { $colours[$_] => $_ } 0 .. $#colours }) if @colours <= $limit;
  my @points = map {
    my ($r, $g, $b, $a) = unpack 'C4', $_;
    [$r * $a / 255, $g * $a / 255, $b * $a / 255, $a, $seen->{$_}];
  } @colours;
  my $apart = sub {
    my ($p, $q) = @_;
    my $sum = 0;
    $sum += ($p->[$_] - $q->[$_])**2 for 0 .. 3;
    return $sum;
  };
  # Start from colours that lie far apart, then move each to the middle of its own.
  my @centres = ([@{ $points[0] }]);
  my @distance = map { $apart->($_, $centres[0]) } @points;
  while (@centres < $limit) {
    my ($best, $weight) = (0, -1);
    for my $i (0 .. $#points) {
      my $w = $distance[$i] * (1 + log $points[$i][4]);
      ($best, $weight) = ($i, $w) if $w > $weight;
    }
    push @centres, [@{ $points[$best] }];
    for my $i (0 .. $#points) {
      my $d = $apart->($points[$i], $centres[-1]);
      $distance[$i] = $d if $d < $distance[$i];
    }
  }
  my @nearest;
  for my $round (1 .. 6) {
    for my $i (0 .. $#points) {
      my ($best, $least) = (0, 1e9);
      for my $c (0 .. $#centres) {
        my $d = $apart->($points[$i], $centres[$c]);
        ($best, $least) = ($c, $d) if $d < $least;
      }
      $nearest[$i] = $best;
    }
    last if $round == 6;
    my @sums = map { [0, 0, 0, 0, 0] } @centres;
    for my $i (0 .. $#points) {
      my ($sum, $weight) = ($sums[$nearest[$i]], $points[$i][4]);
      $sum->[$_] += $points[$i][$_] * $weight for 0 .. 3;
      $sum->[4] += $weight;
    }
    for my $c (0 .. $#centres) {
      my $weight = $sums[$c][4] or next;
      $centres[$c] = [map { $sums[$c][$_] / $weight } 0 .. 3];
    }
  }
  my @palette = map {
    my $a = int($_->[3] + 0.5);
    my @rgb = map { my $v = $a ? int($_ * 255 / $a + 0.5) : 0; $v > 255 ? 255 : $v } @$_[0 .. 2];
    pack 'C4', @rgb, $a;
  } @centres;
  return (\@palette, { map { $colours[$_] => $nearest[$_] } 0 .. $#colours });
}

sub write_bitmap {
  my ($out, $width, $height, $bits, $path) = @_;
  my $raw = slurp($path);
  length($raw) == $width * $height * 4 or die "$path: not $width x $height\n";
  my @pixels = unpack '(a4)*', $raw;
  my %seen;
  for (@pixels) {
    $_ = "\0\0\0\0" if substr($_, 3) eq "\0";
    $seen{$_}++;
  }
  my ($palette, $place) = choose_palette(2**$bits, \%seen);
  my $colours = join '', map { my ($r, $g, $b, $a) = unpack 'C4', $_; pack 'C4', $b, $g, $r, $a }
    @$palette;
  my $rows = '';
  for my $y (reverse 0 .. $height - 1) {
    my @indices = map { $place->{$_} } @pixels[$y * $width .. ($y + 1) * $width - 1];
    my $row = '';
    if ($bits == 8) {
      $row = pack 'C*', @indices;
    } else {
      push @indices, 0 if @indices % 2;
      $row = pack 'C*', map { $indices[2 * $_] * 16 + $indices[2 * $_ + 1] } 0 .. $#indices / 2;
    }
    $rows .= $row . "\0" x (-length($row) % 4);
  }
  my $info = pack 'VVVvvVVVVVV', 40, $width, $height, 1, $bits, 0, length $rows, 0, 0,
    scalar @$palette, 0;
  my $start = 14 + length($info) + length $colours;
  spill($out, pack('a2VvvV', 'BM', $start + length $rows, 0, 0, $start) . $info . $colours . $rows);
  print scalar(keys %seen), " colours kept in ", scalar(@$palette), ": $out\n";
}

# Where the coordinate `c` of the grid of 16 goes at `size` pixels. Edges of areas
# and the centre lines of strokes (`width` pixels; 0: no stroke) go to the nearest
# place that is sharp, measured from the middle so that what is symmetrical stays
# so; everything else keeps its share of the way between two such places.
sub fit_coordinate {
  my ($c, $size, $width) = @_;
  my $sharp = sub {
    my ($halves) = @_;  # distance from the middle, in halves of a grid unit
    my $far = abs($halves) * $size / 32;
    my $odd = $halves % 2 && $width % 2;
    $far = $odd ? int($far) + 0.5 : int($far + 0.5);
    return $size / 2 + ($halves < 0 ? -$far : $far);
  };
  my $step = $width ? 1 : 2;
  my $halves = ($c - 8) * 2;
  my $low = $step * floor($halves / $step);
  return $sharp->($low) if $low == $halves;
  my $share = ($halves - $low) / $step;
  return (1 - $share) * $sharp->($low) + $share * $sharp->($low + $step);
}

sub fit_path {
  my ($d, $fit, $scale) = @_;
  my @tokens = $d =~ /[A-Z]|-?\d*\.?\d+/g;
  my ($out, $command, $n) = ('', '', 0);
  for my $token (@tokens) {
    if ($token =~ /[A-Z]/) {
      $command = $token;
      $n = 0;
      $out .= $token;
      next;
    }
    # Of an arc, the first five numbers are no coordinates: radii, angle, flags.
    my $arc = $command eq 'A' ? $n % 7 : 7;
    $n++;
    $out .= ' ' . ($arc < 2 ? $token * $scale : $arc < 5 ? $token : $fit->($token));
  }
  return $out;
}

sub fit_drawing {
  my ($size, $in, $out) = @_;
  my $scale = $size / 16;
  my $svg = slurp($in);
  $svg =~ s/viewBox="0 0 16 16"/viewBox="0 0 $size $size"/ or die "$in: not on a grid of 16\n";
  $svg =~ s{<(path|rect|circle|ellipse)\b([^>]*?)/>}{
    my ($kind, $text) = ($1, $2);
    my %a = $text =~ /([\w-]+)="([^"]*)"/g;
    my $off = delete $a{'data-hint'};
    my $width = 0;
    if ($a{stroke}) {
      $width = ($a{'stroke-width'} // 1) * $scale;
      $width = int($width + 0.45) unless $off;
      $a{'stroke-width'} = $width;
    }
    my $fit = $off ? sub { $_[0] * $scale } : sub { fit_coordinate($_[0], $size, $width) };
    if ($kind eq 'path') {
      $a{d} = fit_path($a{d}, $fit, $scale);
    } elsif ($kind eq 'rect') {
      my ($x, $y) = ($fit->($a{x}), $fit->($a{y}));
      $a{width} = $fit->($a{x} + $a{width}) - $x;
      $a{height} = $fit->($a{y} + $a{height}) - $y;
      @a{qw(x y)} = ($x, $y);
      $a{rx} *= $scale if $a{rx};
    } else {
      # The two edges are what has to be sharp; a circle stays round.
      my $rx = $a{rx} // $a{r};
      my $ry = $a{ry} // $a{r};
      my ($left, $top) = ($fit->($a{cx} - $rx), $fit->($a{cy} - $ry));
      my $right = $fit->($a{cx} + $rx);
      my $bottom = $a{r} ? $top + $right - $left : $fit->($a{cy} + $ry);
      $a{cx} = ($left + $right) / 2;
      $a{cy} = ($top + $bottom) / 2;
      $a{rx} = ($right - $left) / 2;
      $a{ry} = ($bottom - $top) / 2;
      delete $a{r};
      $kind = 'ellipse';
    }
    "<$kind" . join('', map { qq( $_="$a{$_}") } sort keys %a) . '/>';
  }ge;
  spill($out, $svg);
}

my $what = shift // '';
if ($what eq 'ico') { write_icon(@ARGV) }
elsif ($what eq 'bmp') { write_bitmap(@ARGV) }
elsif ($what eq 'fit') { fit_drawing(@ARGV) }
else { die "usage: see the head of this file\n" }
