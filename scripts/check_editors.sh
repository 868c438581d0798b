#!/usr/bin/env bash
# Uses what editors/ has for each editor, as its authors would, and fails when an editor shows or does
# something else than is expected:
#
#   check_editors.sh [--refresh] [PROGRAM]
#
# PROGRAM is the quill-inp that the editors call; without it, one is built. With --refresh, the expected
# results are written. Needs npm for some editors.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/tool.sh

refresh=()
if [ "${1:-}" = --refresh ]; then refresh=(--refresh) && shift; fi

need_packages vim neovim emacs-nox elpa-eglot libkf5syntaxhighlighting-tools libxml2-utils python3 \
  chromium unzip
if ! command -v npm >/dev/null; then need_packages nodejs npm; fi
if [ $# -gt 0 ]; then tool=$1; else build_tool; fi

tests/editors/vim/check.sh "${refresh[@]}"
tests/editors/vim/redraw.sh
tests/editors/vim/use.sh "$tool" vim "${refresh[@]}"
tests/editors/vim/use.sh "$tool" nvim
tests/editors/neovim/check.sh "$tool"
tests/editors/emacs/check.sh "$tool"
tests/editors/kate/check.sh "${refresh[@]}"
/usr/bin/python3 -c 'import tomllib; tomllib.load(open("editors/helix/languages.toml", "rb"))'
tests/editors/textmate/check.sh "${refresh[@]}"
tests/editors/node/check.sh "$tool"
tests/editors/vscode/check.sh
