# SPDX-License-Identifier: MIT
# Damages programs: bytes are exchanged, the end or a piece is cut off, lines change their places, a
# piece comes twice. The same seed damages in the same way.
# usage: perl damage.pl FOLDER COUNT SEED PROGRAM...      (FOLDER gets files 1 to COUNT)

use strict;
use warnings;

my ($folder, $count, $seed, @programs) = @ARGV;
srand $seed;

sub contents {
  my ($name) = @_;
  open my $file, '<:raw', $name or die "$name: $!\n";
  local $/;
  return scalar <$file>;
}

sub place { return int rand(length($_[0]) + 1) }

my @damages = (
  sub { # bytes
    my ($text) = @_;
    substr($text, int rand length $text, 1) = chr int rand 256 for 1 .. 1 + rand 8;
    return $text;
  },
  sub { # bits
    my ($text) = @_;
    for (1 .. 1 + rand 4) {
      my $at = int rand length $text;
      substr($text, $at, 1) = chr(ord(substr $text, $at, 1) ^ (1 << int rand 8));
    }
    return $text;
  },
  sub { return substr $_[0], 0, place($_[0]) }, # the end is lost
  sub { # a piece is lost
    my ($text) = @_;
    substr($text, place($text), int rand 200) = '';
    return $text;
  },
  sub { # a piece comes twice, somewhere
    my ($text) = @_;
    my $piece = substr $text, place($text), int rand 400;
    substr($text, place($text), 0) = $piece;
    return $text;
  },
  sub { # lines change their places
    my @lines = split /^/, $_[0];
    for (1 .. 1 + rand 3) {
      my ($one, $other) = (int rand @lines, int rand @lines);
      @lines[$one, $other] = @lines[$other, $one];
    }
    return join '', @lines;
  },
  sub { # a number is another one
    my ($text) = @_;
    my @numbers = ('-', '1e9', '99999999999', '.', '-0', '0.0000001', '65536', '');
    my @places;
    push @places, [$-[0], $+[0] - $-[0]] while $text =~ /(?<=[A-Z])-?[0-9.]+/g;
    if (@places) {
      my ($at, $size) = @{ $places[rand @places] };
      substr($text, $at, $size) = $numbers[rand @numbers];
    }
    return $text;
  },
);

for my $number (1 .. $count) {
  my $name = $programs[rand @programs];
  my $text = contents($name);
  $text = $damages[rand @damages]->($text) || ' ' for 1 .. 1 + rand 2;
  open my $file, '>:raw', "$folder/$number" or die "$folder/$number: $!\n";
  print $file $text;
  close $file or die "$folder/$number: $!\n";
  next unless -e "$name.txt";
  open my $beside, '>:raw', "$folder/$number.txt" or die "$folder/$number.txt: $!\n";
  print $beside $damages[rand @damages]->(contents("$name.txt"));
  close $beside or die "$folder/$number.txt: $!\n";
}
