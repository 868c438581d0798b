#!/usr/bin/env bash
# Compares what the library makes of numbers, and numbers of texts, with the C library.
#
#   scripts/exactness.sh [COUNT [SEED]]   COUNT numbers of every kind, ten million unless told
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

count=${1:-10000000}
seed=${2:-1}
build=build/exactness
mkdir -p "$build"
echo "Building in $build ..."
if ! {
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DKELP_QUILL_INP_BUILD_EXAMPLES=ON -DKELP_QUILL_INP_BUILD_TESTS=ON &&
    cmake --build "$build" --target kelp_quill_inp_number_exactness \
      kelp_quill_inp_number_exactness_portable
} >"$build/build.log" 2>&1; then
  tail -n 30 "$build/build.log" >&2
  echo "The build failed; the whole output is in $build/build.log." >&2
  exit 1
fi

check() {
  echo "== $*"
  "$build/tests/exactness/$1" "$2" "$count" "$seed"
}
check kelp_quill_inp_number_exactness reading
check kelp_quill_inp_number_exactness coordinates
check kelp_quill_inp_number_exactness scan_values
check kelp_quill_inp_number_exactness_portable coordinates
