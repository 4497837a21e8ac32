package CppText;

# What the rules of this folder share: the C++ files of a tree, and their text without what only
# looks like code.

use strict;
use warnings;
use Exporter 'import';
our @EXPORT = qw(hosts sources code textOf lineAt complain verdict);

# The systems that the program can be built for: each has a folder below src/platform/.
sub hosts {
    return qw(linux macos);
}

my $complaints = 0;

# The C++ files below the folders of a tree, relative to it; the rules' own samples left out.
sub sources {
    my ($root, @folders) = @_;
    my @files;
    for my $folder (grep { -d "$root/$_" } @folders) {
        open(my $find, '-|', 'find', "$root/$folder", '-name', '*.cpp', '-o', '-name', '*.h')
            or die "cannot run find: $!\n";
        while (my $file = <$find>) {
            chomp $file;
            $file = substr($file, length("$root/"));
            push @files, $file unless $file =~ m{^tests/lint/samples/};
        }
    }
    return sort @files;
}

sub textOf {
    my ($path) = @_;
    open(my $file, '<', $path) or die "cannot read $path: $!\n";
    local $/;
    return <$file>;
}

sub blank {
    my ($text) = @_;
    $text =~ s/[^\n]/ /g;
    return $text;
}

# The text with comments turned to blanks, and the insides of literals too unless they are to be
# kept. Lines stay where they are.
sub code {
    my ($text, $literals) = @_;
    my $keep = ($literals // '') eq 'with literals';
    $text =~ s{
        (?<comment> //[^\n]* | /\*.*?\*/ )
      | (?<raw> R"(?<mark>[^(\s]*)\(.*?\)\k<mark>" )
      | (?<literal> "(?:[^"\\\n]|\\.)*" | (?<![0-9a-fA-F])'(?:[^'\\\n]|\\.)+' )
    }{
        defined $+{comment} ? blank($+{comment})
            : $keep ? $&
            : '"' . blank(substr($&, 1, -1)) . '"'
    }gsex;
    return $text;
}

sub lineAt {
    my ($text, $position) = @_;
    return 1 + (substr($text, 0, $position) =~ tr/\n//);
}

sub complain {
    my ($file, $line, $message) = @_;
    print "$file:$line: $message\n";
    ++$complaints;
}

# How the rule's script ends.
sub verdict { exit($complaints ? 1 : 0) }

1;
