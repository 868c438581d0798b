#!/usr/bin/env bash
# Uses the language server of the program that is given in Neovim, with the client that Neovim brings:
#
#   check.sh PROGRAM
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
root=$PWD
program=$(realpath "$1")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir "$scratch/bin" "$scratch/inputs"
ln -s "$program" "$scratch/bin/quill-inp"
cd "$scratch/inputs"
printf '#opt(maxiter=50\n0 1\nH 0 0 0\nH 0 0 0,74\nb 1 x\n' >careless.qin
printf '%s\n' '#opt(maxiter=50)' '#model = small-organic' '' '0 1' 'O 0.0 0.0 0.117176' 'H 0.0 0.756950 -0.468706' \
  'H 0.0 -0.756950 -0.468706' '' 'B 1 2' 'S 2 1 3 120.0 10' >water.qin
printf '#sp\n0 1\nXYZ wa\n' >path.qin
printf '#sp\n0 1\nO 0 0 0\nb 1 x' >unended.qin
printf '1\nhelium\nHe 0 0 0\n' >water.xyz

# The server's messages and those of the client are in this log if something fails.
if ! PATH=$scratch/bin:$PATH HOME=$scratch XDG_CACHE_HOME=$scratch XDG_STATE_HOME=$scratch timeout 60 \
  nvim --headless -u NONE -i NONE -n --cmd "set runtimepath^=$root/editors/vim,$root/editors/neovim" \
  -c 'filetype plugin on' -S "$root/tests/editors/neovim/client.lua" </dev/null 2>"$scratch/errors"; then
  cat "$scratch/errors" >&2
  find "$scratch" -name lsp.log -exec tail -n 20 {} + >&2
  exit 1
fi
echo "Neovim and the language server understand each other"
