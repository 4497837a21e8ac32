#!/usr/bin/perl
# man.pl PROGRAM TEMPLATE VERSION: prints the template of a manual page with @VERSION@ filled in, and
# @OPTIONS@ and @COMMANDS@ from the program's own help.
use strict;
use warnings;
use FindBin;
use lib $FindBin::Bin;
use Help;

sub plain { return $_[0] =~ s/\\/\\e/gr =~ s/-/\\-/gr }
sub bold { return '\fB' . plain($_[0]) . '\fR' }
sub italic { return '\fI' . plain($_[0]) . '\fR' }

sub value {
    my ($value) = @_;
    my @words = Help::choices($value);
    return @words ? join('|', map { bold($_) } @words) : italic($value);
}

sub paragraph {
    my ($head, $meaning) = @_;
    return ".TP\n$head\n" . plain($meaning) . ".\n";
}

sub option {
    my ($option) = @_;
    my $head = join ', ', map { bold($_) } @{$option->{names}};
    $head .= ' ' . value($option->{value}) if defined $option->{value};
    return paragraph($head, $option->{meaning});
}

sub entries {
    my ($of) = @_;
    return map({ paragraph(value($_->{value}), $_->{meaning}) } @{$of->{arguments}}),
        map { option($_) } @{$of->{options}};
}

sub command {
    my ($command) = @_;
    my @words = (bold($command->{name}),
        map { value($_->{value}) . ($_->{isRepeated} ? '...' : '') } @{$command->{arguments}});
    return ".SS @words\n" . plain($command->{meaning}) . ".\n", entries($command);
}

my ($path, $template, $version) = @ARGV;
my $program = Help::ofProgram($path);
my %parts = (
    VERSION => $version,
    OPTIONS => join('', entries($program)) =~ s/\n$//r,
    COMMANDS => join('', map { command($_) } @{$program->{commands}}) =~ s/\n$//r,
);
open my $file, '<', $template or die "$template: $!\n";
while (my $line = <$file>) {
    print $line =~ s/\@([A-Z]+)\@/$parts{$1}/gr;
}
