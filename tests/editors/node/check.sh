#!/usr/bin/env bash
# Speaks with the language server of the program that is given by the packages of the protocol:
#
#   check.sh PROGRAM
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
. scripts/support/packages.sh
. scripts/support/npm.sh
PROGRAM=$(realpath "$1")
export PROGRAM
made=build/editors/node

install_npm_packages tests/editors/node "$made"
cp tests/editors/node/*.mjs "$made"
cd "$made"
timeout 120 node --test ./*.test.mjs >log 2>&1 || { cat log >&2; exit 1; }
echo "a client in Node goes through everything that the language server tells"
