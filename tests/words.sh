#!/usr/bin/env bash
# usage: words.sh [--list]
# Holds the section [Words] of each language file in examples/ to the texts that the program looks up
# there: every one, no other, each with the same places for values. --list prints those texts.
set -eu
cd "$(dirname "$0")/.."

list() {
  find src -name '*.cpp' -o -name '*.h' | LC_ALL=C sort | xargs perl -0777 -ne '
    while (/(?<![.\w])(?:Word|Wording|LaterWord|InWords)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)/g) {
      my $word = $1;
      $word =~ s/"\s*"//g;
      $word =~ s/^"|"\s*$//g;
      print "$word\n";
    }' | LC_ALL=C sort -u
}

if [ "${1:-}" = --list ]; then
  list
  exit
fi
list | perl -e '
  my (%words, $bad);
  sub bad { print "$_[0]\n"; $bad = 1 }
  while (<STDIN>) {
    chomp;
    bad("no key can be: $_") if /[=\\\x80-\xFF]|^[\s;\[]|\s$/;
    bad("one key for two texts: $_") if $words{lc $_};
    $words{lc $_} = $_;
  }
  for my $file (@ARGV) {
    my ($in, %seen);
    open my $lines, "<:raw", $file or die "$file: $!";
    while (<$lines>) {
      bad("$file: a line without CR LF") unless s/\r\n$//;
      $in = lc eq "[words]" if /^\[/;
      next unless $in && /^([^=]+)=(.*)$/;
      my ($key, $text) = ($1, $2);
      bad("$file twice: $key") if $seen{lc $key}++;
      next if $key eq "Locale";
      bad("$file, used by nothing: $key") unless $words{lc $key};
      bad("$file, nothing for: $key") if $text eq "";
      my ($places, $there) = map { join " ", sort /%[1-9]/g } $key, $text;
      bad("$file, other values: $key") unless $places eq $there;
    }
    bad("$file lacks: $words{$_}") for grep { !$seen{$_} } sort keys %words;
    bad("$file lacks: Locale") unless $seen{locale};
  }
  exit ($bad ? 1 : 0)' examples/*.ini
