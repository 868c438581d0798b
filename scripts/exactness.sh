#!/usr/bin/env bash
# Compares the texts that the library makes of numbers, and the numbers it reads, with the C library's.
#
#   scripts/exactness.sh [COUNT [SEED]]   COUNT numbers of every kind, ten million by default
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

count=${1:-10000000}
seed=${2:-1}
build=build/optimised
echo "Building in $build ..."
build_preset optimised kelp_quill_inp_number_exactness kelp_quill_inp_number_exactness_portable

check() {
  echo "== $*"
  "$build/tests/exactness/$1" "$2" "$count" "$seed"
}
check kelp_quill_inp_number_exactness reading
check kelp_quill_inp_number_exactness coordinates
check kelp_quill_inp_number_exactness scan_values
check kelp_quill_inp_number_exactness_portable coordinates
