#!/usr/bin/env bash
# Builds the libraries, the examples and the tests of the libraries with the oldest compilers that are
# supported, with warnings as errors, and runs these tests.
#
#   scripts/check_compilers.sh [COMPILER...]
#
# A compiler is named as its Debian package is; the default is g++-11 clang-13.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

if [ $# -eq 0 ]; then set -- g++-11 clang-13; fi
need_packages "${test_packages[@]}" "$@"

build_with() {
  cmake -S . -B "build/compilers/$1" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    "-DCMAKE_CXX_COMPILER=${1/#clang-/clang++-}" -DKELP_QUILL_INP_BUILD_EXAMPLES=ON \
    -DKELP_QUILL_INP_BUILD_TESTS=ON -DKELP_QUILL_INP_WARNINGS_AS_ERRORS=ON &&
    cmake --build "build/compilers/$1"
}

for compiler in "$@"; do
  quietly "build/compilers/$compiler.log" build_with "$compiler"
  ctest --test-dir "build/compilers/$compiler" --output-on-failure --no-tests=error -j "$(nproc)" |
    tail -n 6
  echo "the libraries and their tests pass with $compiler"
done
