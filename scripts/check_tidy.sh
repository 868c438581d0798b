#!/usr/bin/env bash
# Fails on any finding of clang-tidy, with the checks of .clang-tidy, in the sources of the libraries,
# the tools, the benchmarks, the examples, the properties and the fuzz targets, or in those of the
# folders that are named:
#
#   scripts/check_tidy.sh [FOLDER...]
#
# Tests made of GoogleTest's macros are not among them unless their folder is named, since they take
# longer than all others together.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}" libbenchmark-dev clang clang-tidy

files=()
if [ $# -eq 0 ]; then
  set -- src sisters tools bench examples tests/properties tests/tools/properties tests/scale \
    tests/exactness fuzz
  files=('!' -name '*_test.cpp')
fi
cmake --preset clang -B build/tidy -DKELP_QUILL_INP_BUILD_BENCHMARKS=ON >/dev/null
find "$@" -name '*.cpp' "${files[@]}" -print0 |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/tidy --warnings-as-errors='*'
echo "clang-tidy has no findings"
