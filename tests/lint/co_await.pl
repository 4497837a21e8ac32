#!/usr/bin/perl
# co_await.pl TREE: co_await stands alone, as a statement, as a whole initialiser, assignment or
# result, or as a condition, and no brace, bracket or "?:" stands beside it. g++ 12 compiles other
# expressions around it into code that destroys things twice.

use strict;
use warnings;
use lib $0 =~ s{[^/]*$}{}r . q{.};
use CppText;

# What may stand between the end of the last statement and the co_await.
my $head = qr/(?: (?:if|for|while) \s* (?:constexpr\s*)? \( (?:[^()]|\([^()]*\))* \) \s* | else\b\s* | do\b\s* )*/x;
my $name = qr/[\w:<>,&*.\s]|->/;
my $binding = qr/(?:const\s+)? auto \s* &{0,2} \s* \[ [\w,\s]+ \] \s* =/x;
my $initialiser = qr/(?: $binding | $name+? (?<![=<>!]) [-+*\/%|&^]? = )/x;
my $before = qr/^ \s* $head (?:
      (?: $initialiser \s* | co_return\s+ )?
    | (?:if|while|switch) \s* \( \s* (?: $initialiser \s* )? !? \s*
    | for \s* \( \s* (?: [^:()?\[\]]|:: | \[ [\w,\s]+ \] )+ : \s*
    ) $/x;

# The text from the end of the last statement on; a ";" inside the head of a for is no end.
sub textBefore {
    my ($code, $position) = @_;
    my $depth = 0;
    my $start = $position;
    while ($start > 0) {
        my $sign = substr($code, $start - 1, 1);
        ++$depth if $sign eq ')';
        --$depth if $sign eq '(';
        last if $depth <= 0 && $sign =~ /[;{}]/;
        --$start;
    }
    return substr($code, $start, $position - $start);
}

# Whether what is awaited, up to the end of the statement or condition, holds plain calls alone.
sub isPlainAfter {
    my ($code, $position, $isCondition) = @_;
    my $depth = 0;
    pos($code) = $position;
    while ($code =~ /\G[^;{}()\[\]?,]*(.)/gs) {
        my $sign = $1;
        if ($sign eq '(') { ++$depth }
        elsif ($sign eq ')') { return $isCondition if --$depth < 0 }
        elsif ($sign eq ';') { return 1 }
        elsif ($sign ne ',' || $depth == 0) { return 0 }
    }
    return 0;
}

my ($root) = @ARGV;
# What must not compile may look as it must not.
for my $file (grep { !m{^tests/compile/} } sources($root, 'src', 'tests')) {
    my $code = code(textOf("$root/$file"));
    while ($code =~ /(?<!operator )\bco_await\b/g) {
        my ($start, $end) = ($-[0], $+[0]);
        my $line = lineAt($code, $start);
        my $text = textBefore($code, $start);
        my $isCondition = $text =~ /(?:if|while|switch|for)\s*\((?:[^()]|\([^()]*\))*$/;
        next if $text =~ $before && isPlainAfter($code, $end, $isCondition);
        complain($file, $line, 'co_await does not stand alone; name what it awaits, or its value');
    }
}
verdict();
