#!/bin/sh
# format.sh TREE: every C++ file is as clang-format 14 lays it out.
set -eu
cd "$1"
find assets src tests tools benchmarks -name samples -prune -o \( -name '*.cpp' -o -name '*.h' \) -print0 |
    xargs -0 -r clang-format-14 --dry-run -Werror
