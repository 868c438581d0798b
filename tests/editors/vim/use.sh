#!/usr/bin/env bash
# Uses the file type plugin as an author does, with the program that is given, and compares what came of it
# with tests/editors/vim/use.txt; --refresh writes that file. With nvim as the second argument, in Neovim.
#
#   use.sh PROGRAM [EDITOR] [--refresh]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
root=$PWD
program=$(realpath "$1")
editor=${2:-vim}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir "$scratch/bin"
ln -s "$program" "$scratch/bin/quill-inp"
cd "$scratch"
printf '#opt(maxiter=50\n\n0 1\nH 0 0 1,5\nH 0 0 0\nB 1 x\n' >findings.qin
printf '# opt\n\n0  1\nO 0 0 0.117176\nH   0 .75695 -.468706\nH 0 -.75695 -.468706\n\n\nb 1   2\n' >layout.qin
printf '#sp\n0 1\nXYZ water.xyz\n' >reference.qin
printf '#sp\r\n\r\n0  1\r\nHe 0 0 0\r\n' >dos.qin
touch water.xyz

start=(vim -es -u NONE -i NONE -N)
if [ "$editor" = nvim ]; then start=(nvim --headless -u NONE -i NONE -n); fi
PATH=$scratch/bin:$PATH OUTPUT=$scratch/report HOME=$scratch timeout 60 "${start[@]}" \
  --cmd "set runtimepath^=$root/editors/vim" -c 'filetype plugin on' -S "$root/tests/editors/vim/use.vim" \
  </dev/null >"$scratch/output" 2>&1 || { cat "$scratch/output" >&2; exit 1; }
if [ "${3:-}" = --refresh ]; then cp report "$root/tests/editors/vim/use.txt"; fi
diff -u "$root/tests/editors/vim/use.txt" report
echo "$editor finds, formats and follows references as expected"
