#!/usr/bin/env bash
# Prints what the largest texts cost to read, one of 256 MB and one of ten million lines among them,
# with an optimised build: time and memory for a byte of text, and both compared with half of the text.
# Needs some gigabytes of memory.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

build_preset optimised kelp_quill_inp_scale_figures
"build/optimised/tests/scale/kelp_quill_inp_scale_figures"
