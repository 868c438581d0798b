#!/usr/bin/env bash
# Asks bash, zsh and fish for their completions of quill-inp, and fails when these are not what the
# help of the tool lists.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/tool.sh

need_packages zsh fish
build_tool

completions=tools/quill-inp/completions
bash -n "$completions/quill-inp.bash"
zsh -n "$completions/_quill-inp"
fish --no-execute "$completions/quill-inp.fish"
tests/tools/completions/completions_test.sh "$PWD/$tool" "$PWD/$completions"
