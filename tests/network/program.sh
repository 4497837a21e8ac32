#!/bin/sh
# program.sh WITHOUT_INTERNET TIDEWELL: the window's program as it is, from its start over the URL that
# scans everything until it is ended, without a display.
set -eu

machine=$(mktemp -d)
trap 'rm -rf -- "$machine"' EXIT
mkdir -p "$machine/Users/ada" "$machine/run"
chmod 700 "$machine/run"
status=0
XDG_RUNTIME_DIR=$machine/run QT_QPA_PLATFORM=offscreen "$1" timeout 5 "$2" --root "$machine" \
    tidewell://scan || status=$?
# 124: it was still there when its time was over.
[ "$status" -ne 124 ] || exit 0
exit "$status"
