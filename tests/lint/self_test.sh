#!/bin/sh
# self_test.sh RULE: the rule complains of the lines of its sample that end in "// caught", and of
# no other.
set -eu
cd "$(dirname "$0")"
sample=samples/$1

marked=$(grep -rn '// caught$' "$sample" | sed "s|^$sample/||" | cut -d : -f 1,2 | sort -u)
caught=$(perl "$1.pl" "$sample" | cut -d : -f 1,2 | sort -u) || true
[ -n "$marked" ] && [ "$marked" = "$caught" ] && exit 0

printf 'To be caught:\n%s\nCaught:\n%s\n' "$marked" "$caught"
exit 1
