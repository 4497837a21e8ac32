#!/bin/sh
# shell.sh TREE: the shell scripts are without what shellcheck warns of.
set -eu
cd "$1"
shellcheck run test .ci/run tools/build tools/configure tools/install_packages tests/lint/*.sh
