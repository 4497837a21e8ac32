#!/bin/sh
# same_page.sh PAGE PROGRAM: the page is what the program prints. Shows where it is not.
set -eu

"$2" | diff "$1" - || {
    echo "$1 is not what the program says. Make it anew: $2 >$1" >&2
    exit 1
}
