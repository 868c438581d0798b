#!/usr/bin/env bash
# Highlights inputs with the syntax file for Vim and with the TextMate grammar, and fails when a piece
# of them is not highlighted as expected. Needs npm for the grammar; with --refresh, both write the
# expected results.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages vim
if ! command -v npm >/dev/null; then need_packages nodejs npm; fi

tests/editors/vim/check.sh "$@"
tests/editors/textmate/check.sh "$@"
