#!/usr/bin/env bash
# Builds the reader for web pages with Emscripten, in build/wasm; or builds tests of the libraries and runs
# them in Node. The standard library of Debian's Emscripten is an older libc++ that converts no doubles, so
# that these are tests of what takes its place, too.
#
#   scripts/wasm.sh [tests [FOLDER...]]
#
# A FOLDER is one of tests/; by default it is unit.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/googletest.sh
. scripts/support/packages.sh

need_packages cmake ninja-build nodejs emscripten node-acorn nlohmann-json3-dev libutfcpp-dev \
  libfast-float-dev

# Emscripten finds its parser for JavaScript by itself only beside Debian's own Node.
export NODE_PATH=${NODE_PATH:+$NODE_PATH:}/usr/share/nodejs

# The headers of packages that are headers alone, by themselves: the machine's other headers are not for
# this compiler. Without the files by which CMake would refuse packages of a machine with 64 bits.
packages=$PWD/build/wasm-packages
mirror_package() {
  local file
  dpkg-query --listfiles "$1" | grep -E '/include/|/cmake/' | grep -v 'Version\.cmake$' |
    while read -r file; do
      if [ ! -f "$file" ]; then continue; fi
      mkdir -p "$packages/$(dirname "${file#/usr/}")"
      ln -sfn "$file" "$packages/${file#/usr/}"
    done
}

configure() {
  quietly build/wasm/configure.log cmake --preset wasm \
    "-Dutf8cpp_DIR=$(dirname "$packages"/lib/*/cmake/utf8cpp/utf8cppConfig.cmake)" "$@"
}

build_reader() {
  configure
  quietly build/wasm/build.log cmake --build build/wasm --target kelp_quill_inp_web
  echo "the reader for web pages is in build/wasm/tools/web"
}

# Tests that ask the C library what is right, where Emscripten's says something else: it reads "-nan" as a NaN
# without its sign, and prints no long double.
asking_the_c_library=ParseDoubleAsStrtod.OfRandomBits*:ParseDoubleOfEveryShortToken.FollowsTheSpellingOfNames
asking_the_c_library+=:ParseDoubleHalfway.IsTooLargeAboveTheLargestDoubleAndRightBelowHalfwayIsNot

# run_tests FOLDER...
run_tests() {
  local folder
  build_googletest build/wasm-googletest -DCMAKE_CXX_FLAGS=-fexceptions \
    -DCMAKE_TOOLCHAIN_FILE=/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake
  configure -DKELP_QUILL_INP_BUILD_TESTS=ON -DKELP_QUILL_INP_BUILD_EXAMPLES=ON \
    "-DKELP_QUILL_INP_TEST_ARGUMENTS=--gtest_filter=-$asking_the_c_library" \
    "-DCMAKE_PREFIX_PATH=$packages;$PWD/build/wasm-googletest/installed"
  for folder in "$@"; do
    quietly build/wasm/build.log cmake --build build/wasm --target "tests/$folder/all"
    ctest --test-dir "build/wasm/tests/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
  done
}

for package in nlohmann-json3-dev libutfcpp-dev libfast-float-dev; do mirror_package "$package"; done
if [ $# -eq 0 ]; then
  build_reader
elif [ "$1" = tests ]; then
  shift
  if [ $# -eq 0 ]; then set -- unit; fi
  run_tests "$@"
else
  echo "usage: wasm.sh [tests [FOLDER...]]" >&2
  exit 2
fi
