#!/usr/bin/env bash
# Changes the sources of the libraries, and those of the tool that edit, write and convert, at one
# point at a time and says how many of the changes the tests notice. Fails when fewer than 96 in 100 of
# the libraries or 90 in 100 of the tool and of the library for front ends are noticed, and when a
# change that is not noticed is not listed with its reason in tests/mutation/equivalent.txt.
#
#   scripts/mutate.sh                        every change, some hours on two cores
#   scripts/mutate.sh src sisters            those of the libraries, half an hour
#   scripts/mutate.sh --seed 2 --sample 25   some of them
#   scripts/mutate.sh --sample 25 lossless/editing src/reader/post_line.cpp
#
# It can be stopped at any time: the results so far are kept in build/mutation/results.jsonl.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" python3

build_preset dev
exec /usr/bin/python3 -B scripts/support/mutation "$@"
