#!/usr/bin/env bash
# Prints what the largest texts cost to read, one of 256 MB and one of ten million lines among them,
# with an optimised build: time and memory for a byte of text, and both against half of the text.
# Takes some gigabytes of memory.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

build=build/scale
log=$build/build.log
mkdir -p "$build"
if ! {
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DKELP_QUILL_INP_BUILD_TESTS=ON \
    -DKELP_QUILL_INP_BUILD_EXAMPLES=ON &&
    cmake --build "$build" --target kelp_quill_inp_scale_figures
} >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  echo "The build failed; the whole output is in $log." >&2
  exit 1
fi
"$build/tests/scale/kelp_quill_inp_scale_figures"
