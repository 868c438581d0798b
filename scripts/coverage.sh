#!/usr/bin/env bash
# Runs every test except the fuzz targets, built with clang++ and under the address and undefined
# behaviour sanitizers, and says how much of the libraries and the tools they reach.
# Fails below 100 % of functions and lines and 98 % of branches of the libraries, at a branch that is not
# reached and has no reason in tests/coverage/unreached.txt, and below 95 % of lines of the library
# for front ends and of the tools.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/libraries.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" clang llvm libclang-rt-14-dev python3

build=build/coverage
profiles=$build/profiles
# Programs write their counts to this path; the counts of one library are added up in one file.
export LLVM_PROFILE_FILE=$PWD/$profiles/%m.profraw
build_preset coverage

rm -rf "$profiles"  # those of an earlier run would be added up with these
# Tests that limit the size of files would also limit the counts. Tests that run the same code with other
# bytes run without sanitizers, and so do those that end the program at every allocation for good: here
# each allocation fails alone, which takes minutes.
export GTEST_FILTER='-*FilesMayNotGrow*:*HundredMegabytes*:*ChangedExample*:*EveryHeaderLine*:*LastingShortage*'
# One program has functions with the library's names and other bodies, whose counts would not match.
# Another counts the memory for large texts, of which a sanitizer only makes minutes of work. Programs
# that only start threads run under the thread sanitizer; here threads would spoil one another's counts.
if ! ctest --preset coverage --exclude-regex 'WithoutWideIntegers|WithoutStandardConversions|the_first_program|memory_limit|_threads_test' \
  >"$build/tests.log" 2>&1; then
  tail -n 50 "$build/tests.log" >&2
  exit 1
fi

llvm-profdata-14 merge -o "$build/counts.profdata" "$profiles"/*.profraw
objects=()
for library in "${shared_libraries[@]}"; do objects+=(-object="$build/$library.so"); done
with_tools=no
if [ -x "$build/tools/quill-inp/quill-inp" ]; then
  objects+=(-object="$build/tools/quill-inp/quill-inp")
  with_tools=yes
fi
llvm-cov-14 export -instr-profile="$build/counts.profdata" "${objects[@]}" \
  -ignore-filename-regex='^/usr/' >"$build/coverage.json"
/usr/bin/python3 -B scripts/support/coverage.py "$build/coverage.json" tests/coverage/unreached.txt \
  "$with_tools"
