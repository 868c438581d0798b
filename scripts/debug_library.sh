#!/usr/bin/env bash
# Runs every test, or those of one folder, with the checks of the standard library's debug mode:
# iterators, ranges and indices of all containers. The mode changes the containers, so GoogleTest is
# built in it as well, from the sources that its Debian package brings.
#
#   scripts/debug_library.sh [unit | interface]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}" googletest

build=build/debug-library-googletest
log=$build/build.log
mkdir -p "$build"
if ! {
  cmake -S /usr/src/googletest -B "$build" -G Ninja \
    -DCMAKE_CXX_FLAGS="-D_GLIBCXX_DEBUG -D_GLIBCXX_DEBUG_PEDANTIC" \
    -DCMAKE_INSTALL_PREFIX="$PWD/$build/installed" &&
    cmake --build "$build" --target install
} >"$log" 2>&1; then
  tail -n 30 "$log" >&2
  echo "GoogleTest could not be built; the whole output is in $log." >&2
  exit 1
fi

folder=${1:+tests/$1}
cmake --preset debug-library
cmake --build --preset debug-library ${folder:+--target "$folder/all"}
ctest --test-dir "build/debug-library/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
