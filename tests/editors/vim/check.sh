#!/usr/bin/env bash
# Opens the example inputs and those of tests/editors in Vim, without a screen, and compares the
# syntax group of every piece of text with the checked-in ones. Run with --refresh to write these;
# read the difference then.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
folder=tests/editors/vim
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

groups_of() {
  OUTPUT=$scratch/groups timeout 30 vim -es -u NONE -i NONE -N \
    --cmd "set runtimepath^=$PWD/editors/vim" -c 'filetype on' -c 'syntax on' \
    -c "edit $1" -S "$folder/show_groups.vim" -c 'qa!' </dev/null
}

status=0
for input in examples/inputs/*.qin tests/editors/*.qin; do
  expected=$folder/groups/$(basename "$input" .qin).txt
  groups_of "$input"
  if [ "${1:-}" = --refresh ]; then
    mkdir -p "$folder/groups"
    cp "$scratch/groups" "$expected"
  elif ! diff -u "$expected" "$scratch/groups"; then
    status=1
  fi
done
[ "$status" -eq 0 ] && echo "Vim shows the inputs as expected"
exit "$status"
