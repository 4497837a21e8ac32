#!/usr/bin/perl
# claims.pl TREE: every test that docs/safety.md names is there. `Suite.Name` is a whole name,
# `Suite.Name…` the beginning of one, and `…Name` one of the suite that was named last.

use strict;
use warnings;
use lib $0 =~ s{[^/]*$}{}r . q{.};
use CppText;

my ($root) = @ARGV;
my @tests;
for my $file (sources($root, 'tests')) {
    my $code = textOf("$root/$file");
    push @tests, "$1.$2" while $code =~ /^TEST(?:_F|_P)?\(\s*(\w+),\s*(\w+)\)/mg;
}

my $page = 'docs/safety.md';
my $text = textOf("$root/$page");
my $suite = '';
while ($text =~ /`(?:window\.)?(?:([A-Z]\w+)\.|…)([A-Z]\w+)((?:…)?)`/g) {
    my ($name, $line) = ($2 . ($3 ? '' : '$'), lineAt($text, $-[0]));
    $suite = $1 if $1;
    next if grep { /^\Q$suite\E\.$name/ } @tests;
    complain($page, $line, "no test is called $suite.$2");
}
verdict();
