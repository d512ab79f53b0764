#!/usr/bin/perl
# The two steps of rendering pictures for which there is no tool (tools/render_icons.sh):
#   picture_files.pl fit SIZE <DRAWING >FITTED
# fits a drawing made on a grid of 16 to another size, so that its edges fall on whole pixels, and
#   picture_files.pl bmp WIDTH HEIGHT <PIXELS >BITMAP
# writes a bitmap of 8 bits whose palette has the alpha of each colour in its fourth bytes: a
# quarter of the bytes of a 32-bit bitmap. PIXELS are raw RGBA bytes of at most 256 colours.
use strict;
use warnings;
use POSIX qw(floor);

sub write_bitmap {
  my ($bytes, $width, $height) = @_;
  my @pixels = unpack '(a4)*', $bytes;
  @pixels == $width * $height or die "the picture is not $width x $height\n";
  my (@palette, %place);
  for (@pixels) {
    $place{$_} //= push(@palette, $_) - 1;
  }
  @palette <= 256 or die "the picture has more than 256 colours\n";
  my $colours = join '', map { pack 'C4', (unpack 'C4')[2, 1, 0, 3] } @palette;
  my $rows = '';
  for my $y (reverse 0 .. $height - 1) {
    $rows .= pack('C*', @place{ @pixels[$y * $width .. ($y + 1) * $width - 1] }) . "\0" x (-$width % 4);
  }
  my $info = pack 'VVVvvVVVVVV', 40, $width, $height, 1, 8, 0, length $rows, 0, 0, scalar @palette, 0;
  my $start = 14 + length($info) + length $colours;
  print pack('a2VvvV', 'BM', $start + length $rows, 0, 0, $start) . $info . $colours . $rows;
}

# The place at `size` pixels of the coordinate `c` of the grid of 16. Edges of areas and the centre
# lines of strokes (`width` pixels; 0: no stroke) go to the nearest place where they are sharp, counted
# from the middle, so that a symmetrical drawing stays symmetrical. All other coordinates keep their
# relative place between two of these.
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
    # The first five numbers of an arc are no coordinates but radii, angle and flags.
    my $arc = $command eq 'A' ? $n % 7 : 7;
    $n++;
    $out .= ' ' . ($arc < 2 ? $token * $scale : $arc < 5 ? $token : $fit->($token));
  }
  return $out;
}

sub fit_drawing {
  my ($svg, $size) = @_;
  my $scale = $size / 16;
  $svg =~ s/viewBox="0 0 16 16"/viewBox="0 0 $size $size"/ or die "the drawing is not on a grid of 16\n";
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
      # Both edges of a shape have to be sharp, but a circle has to stay round.
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
  print $svg;
}

my $what = shift // '';
binmode $_ for *STDIN, *STDOUT;
my $given = do { local $/; <STDIN> };
if ($what eq 'fit') { fit_drawing($given, @ARGV) }
elsif ($what eq 'bmp') { write_bitmap($given, @ARGV) }
else { die "usage: see the head of this file\n" }
