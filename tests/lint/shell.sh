#!/bin/sh
# shell.sh TREE: the shell scripts are without what shellcheck warns of.
set -eu
cd "$1"
grep -rlZE '^#!/bin/(ba)?sh' run test .ci assets tools tests benchmarks packaging 2>/dev/null |
    xargs -0 shellcheck
