#!/usr/bin/env bash
# Counts with callgrind the instructions that reading and writing ten thousand atoms take, function
# by function. Unlike times, these are the same on a busy machine.
#
#   scripts/profile.sh [ROWS]   the ROWS most expensive functions, fifteen by default
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${build_packages[@]}" libbenchmark-dev valgrind

rows=${1:-15}
build=build/bench
echo "Building in $build ..."
build_preset bench kelp_quill_inp_profiled

for what in read write; do
  echo "== $what"
  valgrind --quiet --tool=callgrind --callgrind-out-file="$build/callgrind.$what" \
    "$build/bench/kelp_quill_inp_profiled" "$what"
  callgrind_annotate "$build/callgrind.$what" |
    sed -nE 's/^ *([0-9,]+) \(( ?[0-9.]+%)\) +([^:]*:)?(.*)$/\2  \1  \4/p' |
    sed -E 's/ \[[^]]*\]$//; s/\[abi:cxx11\]//g; s/std::(__cxx11::)?basic_string(_view)?<char, std::char_traits<char>(, std::allocator<char> *)? *>/string\2/g' |
    head -n "$rows"
done
