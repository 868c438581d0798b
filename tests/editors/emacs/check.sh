#!/usr/bin/env bash
# Compiles the mode for Emacs, and uses it and the language server of the program that is given:
#
#   check.sh PROGRAM
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
program=$(realpath "$1")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir "$scratch/bin"
ln -s "$program" "$scratch/bin/quill-inp"
cp editors/emacs/quill-mode.el "$scratch"
HOME=$scratch emacs --batch -Q --eval '(setq byte-compile-error-on-warn t)' -f batch-byte-compile \
  "$scratch/quill-mode.el" 2>"$scratch/log" || { cat "$scratch/log" >&2; exit 1; }
# Debian's packages for Emacs are found by what runs at its start.
HOME=$scratch PATH=$scratch/bin:$PATH timeout 60 emacs --batch --no-init-file --eval '(package-initialize)' \
  -L "$scratch" -l tests/editors/emacs/quill-mode-test.el -l tests/editors/emacs/quill-eglot-test.el \
  -f ert-run-tests-batch-and-exit >"$scratch/log" 2>&1 ||
  { cat "$scratch/log" >&2; exit 1; }
echo "Emacs highlights inputs, and eglot and the language server understand each other"
