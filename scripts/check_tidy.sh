#!/usr/bin/env bash
# Fails on any finding of clang-tidy, with the checks of .clang-tidy, in the sources of the
# libraries, the tools, the examples, the properties and the fuzz targets, but not in what is made of
# the macros of GoogleTest.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

cmake --preset clang >/dev/null
find src sisters tools examples tests/properties tests/scale tests/exactness fuzz \
  -name '*.cpp' ! -name '*_test.cpp' -print0 |
  xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/clang --warnings-as-errors='*'
echo "clang-tidy has no findings"
