#!/usr/bin/env fish
# Prints what fish offers for the last word of a command line, one word per line:
#
#   offers_of_fish.fish COMPLETIONS WORD...
source $argv[1]/quill-inp.fish
complete -C (string join ' ' -- $argv[2..]) | string replace -r '\t.*' ''
