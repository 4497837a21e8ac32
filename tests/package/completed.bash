#!/bin/bash
# completed.bash COMPLETION WORD...: what bash offers for the last of the words, a line each.
set -eu
# shellcheck source=/dev/null
source "$1"
shift
function=$(complete -p "$1" | sed 's/.* -F \([^ ]*\) .*/\1/')
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
COMPREPLY=()
"$function"
printf '%s\n' "${COMPREPLY[@]}"
