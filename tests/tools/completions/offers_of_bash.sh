#!/usr/bin/env bash
# Prints what bash offers for the last word of a command line, one word per line:
#
#   offers_of_bash.sh COMPLETIONS WORD...
set -u
# shellcheck source=/dev/null
. "$1/quill-inp.bash"
shift
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
_quill_inp
if [ ${#COMPREPLY[@]} -gt 0 ]; then printf '%s\n' "${COMPREPLY[@]}"; fi
