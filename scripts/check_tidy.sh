#!/usr/bin/env bash
# Fails on any finding of clang-tidy, with the checks of .clang-tidy, in the sources of the libraries,
# the tools, the benchmarks and the examples, or in the named folders:
#
#   scripts/check_tidy.sh [FOLDER...]
#
# Tests and fuzz targets are checked only if they are named, since they take longer than all others
# together; files with GoogleTest's macros are never checked, nor are those for another system, whose
# headers are not here.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}" libbenchmark-dev clang clang-tidy

if [ $# -eq 0 ]; then set -- src sisters lossless tools python bench examples; fi
cmake --preset clang -B build/tidy -DKELP_QUILL_INP_BUILD_BENCHMARKS=ON -DKELP_QUILL_INP_BUILD_PYTHON=ON \
  -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON >/dev/null
find "$@" -name '*.cpp' ! -name '*_test.cpp' ! -name '*_windows.cpp' -print0 |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/tidy --warnings-as-errors='*'
echo "clang-tidy has no findings"
