#!/usr/bin/perl
# layers.pl TREE: the operating system is known below src/platform/ alone, the toolkit in the
# windows alone, and every path on disk is found through the host.

use strict;
use warnings;
use lib $0 =~ s{[^/]*$}{}r . q{.};
use CppText;

my $hosts = join '|', hosts();

# Headers in angle brackets that a file may not include.
sub refusedHeader {
    my ($file, $header) = @_;
    if ($header =~ /^Q[A-Z]/ || $header =~ /^Qt/) {
        return $file !~ m{^src/(?:kit|shell)/qt/} && $file !~ m{_screen\.(?:h|cpp)$};
    }
    return 0 if $file =~ m{^src/platform/(?:$hosts)/};
    return $header =~ m{^(?:linux|mach|objc)/|^sys/(?:attr|inotify|mount|pidfd|statfs|sysctl|sysinfo|syscall|vfs|xattr)\.h$|^(?:libproc|mntent)\.h$}
        if $file =~ m{^src/platform/(?:posix|trash)/};
    return 0 if $file =~ m{^src/platform/(?:\w+\.cpp$|\w+/)} && $header =~ m{^(?:unicode/|nlohmann/|expat\.h$)};
    return 0 if $file =~ m{^src/cli/} && $header =~ m{^CLI/};
    return $header =~ m{[./]} || $header =~ /^(?:filesystem|fstream)$/;
}

my $systemFolders = 'usr|bin|sbin|etc|var|tmp|private|opt|home|root|proc|sys|dev|run|mnt|media'
    . '|Applications|Library|System|Users|Volumes|Network|cores';

# Tables of constants may hold paths, for they are looked up through the host; so may what is handed
# to it at once. A text that is joined to another is no path of its own.
sub checkPaths {
    my ($file, $code) = @_;
    $code =~ s/\bconstexpr\b[^;"(]*?[={](?:"(?:[^"\\\n]|\\.)*"|[^;"])*;/CppText::blank($&)/gse;
    $code =~ s/\b(?:systemPath|toolPath|locate)\s*\(\s*"[^"]*"/CppText::blank($&)/ge;
    while ($code =~ m{(?<!\+ )"/(?:$systemFolders)\b[^"]*"}g) {
        complain($file, lineAt($code, $-[0]), "a path on disk is not found through the host: $&");
    }
}

my ($root) = @ARGV;
for my $file (sources($root, 'src')) {
    my $code = code(textOf("$root/$file"), 'with literals');
    while ($code =~ /^[ \t]*#[ \t]*include[ \t]*(?:<([^>]+)>|"([^"]+)")/gm) {
        my ($header, $own, $line) = ($1, $2, lineAt($code, $-[0]));
        complain($file, $line, "this layer does not include <$header>")
            if defined $header && refusedHeader($file, $header);
        complain($file, $line, "includes are written from src/ on: \"$own\"")
            if defined $own && $own =~ m{^\.\.?/};
        complain($file, $line, "what one host answers is asked for by its contract: \"$own\"")
            if defined $own && $own =~ m{^(platform/(?:$hosts)/)} && $file !~ m{^src/\Q$1\E};
    }
    next if $file =~ m{^src/platform/};
    while ($code =~ /\b(?:secure_getenv|getenv|qgetenv|environ|qEnvironmentVariable\w*)\b/g) {
        complain($file, lineAt($code, $-[0]), "the environment is read by the platform alone: $&");
    }
    checkPaths($file, $code);
}
verdict();
