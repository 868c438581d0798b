#!/usr/bin/env bash
# Prints the man page of quill-inp: help2man gets one long help text, made of the program's help and
# the help of each verb. Options that all verbs share are listed once, at the end.
#
#   write_man_page.sh PROGRAM
set -euo pipefail
export LC_ALL=C
program=$(realpath "$1")
include=$(dirname "$0")/../../docs/man/quill-inp.h2m
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

verbs() {
  "$program" --help | sed -n '/^Verbs:/,/^$/s/^  \([a-z-]*\)  .*/\1/p'
}

# without_group NAME: leaves one group of options out.
without_group() { sed "/^$1:\$/,/^\$/d"; }

{
  "$program" --help
  for verb in $(verbs); do
    printf '\n*%s*\n\n' "quill-inp $verb"
    "$program" "$verb" --help | without_group General |
      sed -e "s/^Options:\$/Options of $verb:/" -e 's/^Usage: /  /'
  done
  printf '\n*%s*\n\n' 'options of every verb'
  "$program" show --help | sed -n '/^General:$/,/^$/{/^General:$/!p;}'
} | sed 's/^  -\([a-z0-9]\),--/  -\1, --/' >"$scratch/help"
"$program" --version >"$scratch/version"

# help2man asks a program for both.
cat >"$scratch/quill-inp" <<'PROGRAM'
#!/bin/sh
exec cat "$(dirname "$0")/${1#--}"
PROGRAM
chmod +x "$scratch/quill-inp"

# No date: the page depends on the program alone. Each line of an example is a command.
help2man --no-info --include "$include" "$scratch/quill-inp" |
  sed '/^\.TH /s/"1" "[^"]*"/"1" ""/' |
  awk '
    is_example && $0 == ".HP" { $0 = ".br" }
    is_example && $0 == ".br" { print; next }
    /^\./ { is_example = is_example && $0 == ".IP" || /^\.SS "Example:"/; follows = 0 }
    !/^\./ { if (is_example && follows) print ".br"; follows = 1 }
    { print }
  '
