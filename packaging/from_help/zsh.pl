#!/usr/bin/perl
# zsh.pl PROGRAM: prints the program's completion in zsh, made from its own help.
use strict;
use warnings;
use FindBin;
use lib $FindBin::Bin;
use Help;

# What a value stands for: how it is completed. Others are not.
my %actions = (
    DIR => '_directories',
    PATH => '_files',
    'APP-ID' => '_directories',
    URL => '(tidewell\://scan)',
);

sub quoted { return "'" . $_[0] =~ s/'/'\\''/gr . "'" }

sub value {
    my ($value) = @_;
    my @words = Help::choices($value);
    return @words ? ":choice:(@words)" : ":$value:" . ($actions{$value} // ' ');
}

sub option {
    my ($option) = @_;
    my @names = @{$option->{names}};
    my $meaning = '[' . $option->{meaning} =~ s/([\[\]])/\\$1/gr . ']';
    my $value = defined $option->{value} ? value($option->{value}) : '';
    return quoted(($option->{isRepeated} ? '*' : '') . $names[0] . $meaning . $value)
        if @names == 1;
    return map { quoted("(@names)$_$meaning$value") } @names;
}

sub entries {
    my ($of) = @_;
    my @arguments = map { quoted(($_->{isRepeated} ? '*' : '1') . value($_->{value})) }
        @{$of->{arguments}};
    return map({ option($_) } @{$of->{options}}), @arguments;
}

sub lines { return join '', map { "    $_\n" } @_ }

my $program = Help::ofProgram($ARGV[0]);
print "#compdef $program->{name}\n\n";
print "local -a options=(\n", lines(entries($program)), ")\n";
if (!@{$program->{commands}}) {
    print "_arguments \$options\n";
    exit;
}

print "local -a commands=(\n",
    lines(map { quoted($_->{name} . ':' . $_->{meaning} =~ s/:/\\:/gr) } @{$program->{commands}}),
    ")\n";
print <<'END';
local curcontext=$curcontext context state state_descr line
local -A opt_args

_arguments -C $options '1:command:->command' '*::argument:->arguments'
case $state in
command) _describe command commands ;;
arguments)
    case $words[1] in
END
for my $command (@{$program->{commands}}) {
    print "    $command->{name}) options+=(\n", lines(entries($command)), "    ) ;;\n";
}
print <<'END';
    esac
    _arguments $options
    ;;
esac
END
