#!/usr/bin/env bash
# Runs every test, or those of one folder, with the checks of the standard library's debug mode:
# iterators, ranges and indices of all containers. The mode changes the containers, so GoogleTest is
# built in it as well, from the sources in its Debian package.
#
#   scripts/debug_library.sh [unit | interface]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/googletest.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

build_googletest build/debug-library-googletest \
  -DCMAKE_CXX_FLAGS="-D_GLIBCXX_DEBUG -D_GLIBCXX_DEBUG_PEDANTIC"

folder=${1:+tests/$1}
cmake --preset debug-library
cmake --build --preset debug-library ${folder:+--target "$folder/all"}
# The mode adds its own functions and data to the libraries, and does not report the whole capacity of a
# list that was moved.
ctest --test-dir "build/debug-library/$folder" --output-on-failure --no-tests=error -j "$(nproc)" \
  --exclude-regex '^(ExportedSymbols|WritableData|AnEmptiedList)\.'
