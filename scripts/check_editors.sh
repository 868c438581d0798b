#!/usr/bin/env bash
# Shows inputs with the syntax file for Vim and with the TextMate grammar, and fails when a piece of
# them is taken for something else than expected. Needs npm for the second; with --refresh, both
# write what they expect.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages vim
if ! command -v npm >/dev/null; then need_packages nodejs npm; fi

tests/editors/vim/check.sh "$@"
tests/editors/textmate/check.sh "$@"
