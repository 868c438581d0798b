#!/usr/bin/env zsh
# Prints what zsh offers for the last word of a command line, one word per line:
#
#   offers_of_zsh.zsh COMPLETIONS WORD...
#
# An interactive zsh in a pseudo terminal gets the words and a tab; its compadd tells what it is
# given, between two lines of a mark.
emulate -L zsh
zmodload zsh/zpty
folder=$1
shift
scratch=$(mktemp -d)
mark='=== offers ==='

cat >$scratch/setup <<SETUP
PROMPT=
fpath=($folder \$fpath)
autoload -Uz compinit
compinit -u -d $scratch/dump
bindkey '^I' complete-word
zstyle ':completion:*' insert-tab false
say_mark() { print -r -- '$mark' }
stop() { say_mark; exit }
compprefuncs=(say_mark)
comppostfuncs=(stop)
compadd() {
  if [[ \${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then
    builtin compadd "\$@"
    return
  fi
  local -a hits
  builtin compadd -A hits "\$@"
  print -rl -- \$hits
}
SETUP

zpty shell zsh -f -i
zpty -w shell "source $scratch/setup"
zpty -w -n shell "${(j: :)@}"$'\t'
output=
while zpty -r shell line; do output+=$line; done
rm -rf $scratch
print -r -- ${${output#*$mark}%%$mark*} | tr -d '\r' | sed '/^$/d'
