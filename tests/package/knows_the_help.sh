#!/bin/bash
# knows_the_help.sh PROGRAMS MADE: each command and option of the programs in the folder PROGRAMS, as
# their help has them, is in the manual pages in the folder MADE, and is what the completions there
# offer, no more and no less.
set -euo pipefail

programs=$1
made=$2
here=$(cd "$(dirname "$0")" && pwd)
work=$(mktemp -d)
trap 'rm -rf -- "$work"' EXIT
complaints=$work/complaints
mkdir "$work/folder"
cd "$work"

complain() {
    [ -z "$*" ] || printf '%s\n' "$*" | tee -a "$complaints"
}

commands_of() {
    "$programs/$1" --help | sed -n '/^Subcommands:/,$ s/^  \([a-z-]*\) .*/\1/p'
}

options_of() {
    "$programs/$1" "${@:2}" --help | sed -n 's/^  \(-[a-z],\)\?\(--[a-z-]*\).*/\2/p'
}

# compare WHAT EXPECTED OFFERED: texts of a line each, in any order.
compare() {
    local difference
    difference=$(diff <(sort -u <<<"$2") <(sort <<<"$3")) || complain "$1: $difference"
}

# try_completion WHAT EXPECTED WORD...: in both shells.
try_completion() {
    local what=$1 expected=$2 program=$3
    shift 2
    compare "bash: $what" "$expected" "$(bash "$here/completed.bash" "$made/bash/$program" "$@")"
    compare "zsh: $what" "$expected" "$(zsh -f "$here/completed.zsh" "$made/zsh/_$program" "$@")"
}

try_page() {
    local page=$made/$1.1 word
    complain "$(man --warnings -E UTF-8 -l "$page" 2>&1 >/dev/null)"
    for word in "${@:2}"; do
        grep -qF -- "\\fB${word//-/\\-}\\fR" "$page" || complain "$page says nothing of $word"
    done
}

shared=$(options_of tidewell-cli)
mapfile -t commands < <(commands_of tidewell-cli)
try_completion "the commands" "$(commands_of tidewell-cli)" tidewell-cli ''
try_completion "the options" "$shared" tidewell-cli --
told=("${commands[@]}")
for command in "${commands[@]}"; do
    own=$(options_of tidewell-cli "$command")
    mapfile -t -O ${#told[@]} told <<<"$own"
    try_completion "$command" "$shared"$'\n'"$own" tidewell-cli --json "$command" --
done
try_page tidewell-cli "${told[@]}"
try_completion "a choice" $'safe\nall\nnone' tidewell-cli --root / clean --select ''
try_completion "a folder" folder tidewell-cli --home f

mapfile -t told < <(options_of tidewell)
try_completion "the window's options" "$(options_of tidewell)" tidewell --
try_page tidewell "${told[@]}"

[ ! -e "$complaints" ]
