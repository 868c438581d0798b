#!/usr/bin/env bash
# Builds everything with clang++ and libc++ instead of libstdc++, and runs every test, or those of one
# folder. A class has another layout in each of the two libraries, so GoogleTest is built with libc++
# as well, from the sources in its Debian package.
#
#   scripts/libcxx.sh [unit | interface | properties | exactness]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/googletest.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" clang libc++-14-dev libc++abi-14-dev libfast-float-dev

build_googletest build/libcxx-googletest -DCMAKE_CXX_COMPILER=clang++ \
  -DCMAKE_CXX_FLAGS=-stdlib=libc++

folder=${1:+tests/$1}
cmake --preset libcxx
cmake --build --preset libcxx ${folder:+--target "$folder/all"}
ctest --test-dir "build/libcxx/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
