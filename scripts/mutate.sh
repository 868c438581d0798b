#!/usr/bin/env bash
# Changes the libraries' sources at one point at a time and says how many of the changes the tests
# notice. Fails when fewer than 95 in 100 are noticed, and when a change that is not noticed is not
# listed with its reason in tests/mutation/equivalent.txt.
#
#   scripts/mutate.sh                        every change, half an hour on two cores
#   scripts/mutate.sh --seed 2 --sample 25   a sample of 25 changes
#   scripts/mutate.sh src/reader/post_line.cpp
#
# It can be stopped at any time: the results so far are kept in build/mutation/results.jsonl.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" python3

build_preset dev
exec python3 -B scripts/support/mutation "$@"
