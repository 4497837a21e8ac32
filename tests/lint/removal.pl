#!/usr/bin/perl
# removal.pl TREE: one place removes and moves the user's things, one writes the program's own, and
# nothing else changes the disk or opens a connection.

use strict;
use warnings;
use lib $0 =~ s{[^/]*$}{}r . q{.};
use CppText;

my $hosts = join '|', hosts();

my %doors = (
    removing => [
        qr{^src/platform/(?:posix|$hosts)/(?:exclusive_move|removal|unlinking)\.cpp$},
        qr{^src/platform/trash/\w+\.cpp$},
        qr{^src/platform/\w+/user_defaults\.cpp$},
        qr{^src/platform/\w+/single_instance\.cpp$},  # a socket that an earlier start left behind
        qr{^src/platform/\w+/trial_ground\.cpp$},  # below a folder that it has made itself
    ],
    writing => [
        qr{^src/platform/(?:$hosts)/exclusive_move\.cpp$},
        qr{^src/platform/trash/\w+\.cpp$},
        qr{^src/platform/\w+/user_defaults\.cpp$},
        qr{^src/platform/\w+/process\.cpp$},  # a tool's output to the null device
        qr{^src/platform/\w+/(?:single_instance|local_socket)\.cpp$},
        qr{^src/platform/\w+/trial_ground\.cpp$},
    ],
    starting => [qr{^src/platform/\w+/process\.cpp$}],
    connecting => [],
);

# A name with "(" behind it is a call of a function, not of an object's member.
my @rules = (
    [removing => qr/(?<![\w.>])(?:unlink|unlinkat|rmdir|rename|renameat2?|renamex_np|renameatx_np|remove|remove_all)\s*\(/],
    [removing => qr/\bSYS_(?:unlink|rename|rmdir)\w*/],
    [removing => qr/\b(?:fs|filesystem)::(?:remove|rename|resize_file)\w*/],
    [writing => qr/\bO_(?:WRONLY|RDWR|CREAT|TRUNC|APPEND|TMPFILE)\b/],
    [writing => qr/\b(?:ofstream|fstream|fopen|QSaveFile|QSettings|QTemporaryFile)\b/],
    [writing => qr/(?<![\w.>])(?:f?truncate|mkdirat|mkdir|mkstemp|mkdtemp|symlink|symlinkat|linkat?|f?chmod|fchmodat|[lf]?chown|[lf]?setxattr|utimensat)\s*\(/],
    [writing => qr/\b(?:fs|filesystem)::(?:create|copy|permissions|last_write_time)\w*/],
    [starting => qr/(?<![\w.>])(?:system|popen|fork|vfork|exec[lv]p?e?|posix_spawnp?)\s*\(|\bQProcess\b/],
    [connecting => qr/\b[AP]F_INET6?\b|\bgetaddrinfo\b|\bQTcp\w+|\bQUdp\w+|\bQNetworkAccessManager\b/],
);

my ($root) = @ARGV;
for my $file (sources($root, 'src')) {
    my $code = code(textOf("$root/$file"));
    for my $rule (@rules) {
        my ($deed, $sign) = @$rule;
        next if grep { $file =~ $_ } @{$doors{$deed}};
        while ($code =~ /$sign/g) {
            complain($file, lineAt($code, $-[0]), "$deed is not done here: $&");
        }
    }
}
verdict();
