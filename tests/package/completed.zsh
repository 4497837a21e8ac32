#!/usr/bin/zsh -f
# completed.zsh COMPLETION WORD...: what zsh offers for the last of the words, a line each. Completion
# lives in the line editor alone, so a shell of its own is typed to. Leaves its index in zcompdump in
# the current folder, for the next call.
setopt extendedglob
zmodload zsh/zpty
completion=$1
shift

zpty shell zsh -f -i
# Keeps what the shell offers, until it says the word. It may offer a thing several times. What is typed
# comes back too: the quotes keep it apart from what is said.
typeset -aU found
hear() {
    local line
    while zpty -r shell line; do
        line=${line%%[[:space:]]#}
        [[ $line == *$1 ]] && return
        [[ $line == *offered:* ]] && found+=(${line##*offered:})
    done
}
zpty -w shell "PS1=; fpath=(${(q)completion:h} \$fpath); autoload -U compinit; compinit -u -d ./zcompdump"
zpty -w shell 'offer() { builtin compadd -O found "$@"; print -rl -- offe""red:${^found}; builtin compadd "$@" }'
zpty -w shell 'functions[compadd]=$functions[offer]'
zpty -w shell 'finish() { zle -I; print the""end }; zle -N finish; bindkey "^X" finish'
zpty -w shell 'print be""gun'
hear begun
found=()
zpty -w -n shell "$*"$'\t\x18'
hear theend
print -rl -- $found
