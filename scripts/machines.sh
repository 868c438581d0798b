#!/usr/bin/env bash
# Runs the tests of the libraries on other kinds of machines: those of the parts and of the interface,
# the properties, the exactness of numbers, and the examples with their golden files. i386 programs run
# as they are, those for other processors in an emulator.
#
#   scripts/machines.sh [i386 | i386-sse | aarch64 | s390x]...   all of them by default
#
# i386 computes as the compiler has it there, in registers of 80 bits; i386-sse in those of 64 bits.
# s390x stores the highest byte of a number first.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/googletest.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" g++-i686-linux-gnu g++-aarch64-linux-gnu g++-s390x-linux-gnu \
  qemu-user-static

folders=(tests/unit tests/interface tests/properties tests/exactness tests/examples)
targets=("${folders[@]/%//all}")

# on_machine NAME TRIPLET FLAGS EMULATOR: builds and runs the tests.
on_machine() {
  local name=$1 triplet=$2 flags=$3 emulator=$4 folder
  local build=build/machines/$name
  local options=(-DCMAKE_SYSTEM_NAME=Linux "-DCMAKE_SYSTEM_PROCESSOR=${triplet%%-*}"
    "-DCMAKE_CXX_COMPILER=$triplet-g++" "-DCMAKE_CXX_FLAGS=$flags"
    "-DCMAKE_CROSSCOMPILING_EMULATOR=$emulator")
  echo "== $name: building in $build ..."
  build_googletest "$build-googletest" "${options[@]}" \
    "-DCMAKE_C_COMPILER=$triplet-gcc"
  quietly "$build/configure.log" cmake --preset optimised -B "$build" "${options[@]}" \
    "-DCMAKE_PREFIX_PATH=$PWD/$build-googletest/installed"
  quietly "$build/build.log" cmake --build "$build" --target examples/all "${targets[@]}"
  for folder in "${folders[@]}"; do
    echo "== $name: $folder"
    ctest --test-dir "$build/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
  done
}

emulated() { echo "qemu-$1-static;-L;/usr/$1-linux-gnu"; }
# The loader of its C library, since the machine has none for 32 bits.
as_it_is="/usr/i686-linux-gnu/lib/ld-linux.so.2;--library-path;/usr/i686-linux-gnu/lib"

if [ $# -eq 0 ]; then set -- i386 i386-sse aarch64 s390x; fi
for machine in "$@"; do
  case $machine in
    i386) on_machine i386 i686-linux-gnu "" "$as_it_is" ;;
    i386-sse) on_machine i386-sse i686-linux-gnu "-msse2 -mfpmath=sse" "$as_it_is" ;;
    aarch64 | s390x) on_machine "$machine" "$machine-linux-gnu" "" "$(emulated "$machine")" ;;
    *)
      echo "usage: machines.sh [i386 | i386-sse | aarch64 | s390x]..." >&2
      exit 2
      ;;
  esac
done
