#!/bin/bash
# memory.sh TIDEWELL_CLI [FILES]: the command line does its work in 256 MB, however many files there are:
# a machine of so many in each of the folders that can hold many (10000), all of which are found and
# the cleanable ones removed. The limit is the system's: beyond it, the program gets no memory.
set -euo pipefail

program=$1
files=${2:-10000}
machine=$(mktemp -d)
trap 'rm -rf -- "$machine"' EXIT
home=$machine/Users/ada

# Small files, each with something in it.
fill() {
    mkdir -p "$1"
    (cd "$1" && seq "$files" | split -l 1 -a 5 - "a-name-of-the-usual-length-")
}

run() {
    prlimit --data=$((256 * 1024 * 1024)) "$program" --root "$machine" "$@" >"$machine/output" || {
        echo "\`$*\` failed with $files files in a folder" >&2
        exit 1
    }
}

count() {
    find "$1" -type f | wc -l
}

expect() {
    [ "$1" -eq "$2" ] || {
        echo "$3: $1, not $2" >&2
        exit 1
    }
}

fill "$home/.cache"
fill "$home/Library/Caches"
fill "$home/.npm/_cacache"
fill "$home/Documents/papers"
for ((project = 0; project < files / 20; project++)); do
    echo "$home/Code/$project/node_modules"
done | xargs mkdir -p
for folder in "$home"/Code/*; do
    echo '{}' >"$folder/package.json"
    echo '{}' >"$folder/node_modules/index.js"
done

run scan --json
run deep-scan
run dev
run clean --yes
expect "$(count "$home/.cache")" 0 "left in ~/.cache"
expect "$(count "$home/Library/Caches")" 0 "left in ~/Library/Caches"
expect "$(count "$home/.npm")" 0 "left in ~/.npm"
expect "$(count "$home/Documents")" "$files" "left of the documents"
expect "$(count "$home/Code")" $((files / 20)) "left of the projects"
