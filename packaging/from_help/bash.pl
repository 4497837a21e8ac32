#!/usr/bin/perl
# bash.pl PROGRAM: prints the program's completion in bash, made from its own help.
use strict;
use warnings;
use FindBin;
use lib $FindBin::Bin;
use Help;

# The members of an associative array.
sub table {
    my (%members) = @_;
    return join ' ', map { "[$_]='$members{$_}'" } sort keys %members;
}

my $program = Help::ofProgram($ARGV[0]);
my (%options, %arguments, %values);
for my $place ({%$program, name => '-'}, @{$program->{commands}}) {
    $options{$place->{name}} = join ' ', map { @{$_->{names}} } @{$place->{options}};
    $arguments{$place->{name}} = $_->{value} for @{$place->{arguments}};
    for my $option (grep { defined $_->{value} } @{$place->{options}}) {
        $values{$_} = $option->{value} for @{$option->{names}};
    }
}

my %parts = (
    PROGRAM => $program->{name},
    FUNCTION => '_' . $program->{name} =~ tr/-/_/r,
    COMMANDS => join(' ', map { $_->{name} } @{$program->{commands}}),
    OPTIONS => table(%options),
    ARGUMENTS => table(%arguments),
    VALUES => table(%values),
);
open my $template, '<', "$FindBin::Bin/completion.bash.in" or die "no template: $!\n";
while (my $line = <$template>) {
    print $line =~ s/\@([A-Z]+)\@/$parts{$1}/gr;
}
