#!/usr/bin/env bash
# Compares the scopes that the TextMate grammar gives the example inputs and those of tests/editors
# with the checked-in ones. Run with --refresh to write these; read the difference then.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
root=$PWD
folder=tests/editors/textmate
scratch=build/editors/textmate

rm -rf "$scratch"
mkdir -p "$scratch/inputs"
cp "$folder"/package.json "$folder"/package-lock.json "$folder"/.npmrc "$scratch"
cp examples/inputs/*.qin tests/editors/*.qin "$scratch/inputs"
cd "$scratch"
npm ci --no-audit --no-fund >npm.log 2>&1 || { cat npm.log >&2; exit 1; }

# The tool would make a snapshot that is missing, and be content with it.
if [ "${1:-}" != --refresh ]; then
  for input in inputs/*.qin; do
    cp "$root/$folder/scopes/$(basename "$input").snap" inputs
  done
fi
npx --no-install vscode-tmgrammar-snap --config "$root/editors/textmate/package.json" \
  -g "$root/editors/textmate/syntaxes/quill.tmLanguage.json" --expandDiff "inputs/*.qin" >snap.log ||
  { cat snap.log >&2; exit 1; }
if [ "${1:-}" = --refresh ]; then
  mkdir -p "$root/$folder/scopes"
  cp inputs/*.snap "$root/$folder/scopes"
fi
echo "the TextMate grammar gives the inputs the scopes expected"
