package Help;

# What `PROGRAM --help` and `PROGRAM COMMAND --help` say, read for whatever has to tell the same: so
# a manual page or a completion cannot lag behind the program.
use strict;
use warnings;

# A program:  {name, options, arguments, commands}
# A command:  {name, options, arguments, meaning}
# An option:  {names, value, isRepeated, meaning}; no value: it takes none
# An argument: {value, isRepeated, meaning}
sub ofProgram {
    my ($path) = @_;
    my $program = read_($path);
    ($program->{name}) = $path =~ m{([^/]+)$};
    for my $command (@{$program->{commands}}) {
        my $own = read_($path, $command->{name});
        # Every command has the option --help, and the program has it too.
        $command->{options} = [grep { !grep { $_ eq '--help' } @{$_->{names}} } @{$own->{options}}];
        $command->{arguments} = $own->{arguments};
    }
    return $program;
}

# The words of a value that is one of several: "{safe,all,none}".
sub choices {
    my ($value) = @_;
    return $value =~ /^\{(.*)\}$/ ? split(/,/, $1) : ();
}

# An entry has two columns: what is typed and, behind two blanks or on the next line, its meaning.
sub read_ {
    my @words = @_;
    my @emulator = split ' ', $ENV{TIDEWELL_EMULATOR} // '';  # for another architecture's programs
    open my $output, '-|', @emulator, @words, '--help' or die "cannot start $words[0]: $!\n";
    my %help = (options => [], arguments => [], commands => []);
    my ($entry, $section) = (undef, '');
    while (my $line = <$output>) {
        chomp $line;
        if ($line =~ /^(\w+):$/) {
            $section = $1;
        } elsif ($line =~ /^  (\S+(?: \S+)*)(?:  +(\S.*))?$/) {
            $entry = entry($section, $1);
            $entry->{meaning} = $2;
            push @{$help{$entry->{kind}}}, $entry;
        } elsif ($line =~ /^ +(\S.*)$/ && $entry && !defined $entry->{meaning}) {
            $entry->{meaning} = $1;
        } elsif ($line =~ /^ /) {
            die "@words --help has a line that is no entry: $line\n";
        }
    }
    close $output or die "@words --help failed\n";
    return \%help;
}

# "-h,--help", "--only ID ...", "ids ID ... REQUIRED", "URL", "clean"
sub entry {
    my ($section, $typed) = @_;
    return {kind => 'commands', name => $typed} if $section eq 'Subcommands';
    my ($name, @words) = split / /, $typed;
    my $isRepeated = grep { $_ eq '...' } @words;
    return {kind => 'arguments', value => $words[0] // $name, isRepeated => $isRepeated}
        if $name !~ /^-/;
    return {kind => 'options', names => [split /,/, $name], value => $words[0],
            isRepeated => $isRepeated};
}

1;
