#!/usr/bin/env bash
# Compares what programs built against the libraries rely on, types and functions in their binary
# form, with the descriptions in tests/abi/. Any difference fails, even an addition: a person must
# decide whether to accept it.
#
#   scripts/check_abi.sh             says what differs
#   scripts/check_abi.sh --accept    updates the descriptions; docs/packaging.md says when
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/libraries.sh
. scripts/support/packages.sh

need_packages "${build_packages[@]}" abigail-tools

accept=no
if [ "${1:-}" = --accept ]; then accept=yes; fi

build=build/abi
build_preset abi

# describe LIBRARY DESCRIPTION: nothing in it depends on the machine or on the order of lines.
describe() {
  if ! readelf --sections --wide "$1" | grep -q ' \.debug_info '; then
    echo "$1 has no debugging information to describe its types from" >&2
    return 1
  fi
  abidw --no-corpus-path --no-comp-dir-path --no-show-locs --no-parameter-names --no-elf-needed \
    --no-write-default-sizes --exported-interfaces-only \
    --suppressions tests/abi/standard_library.suppr --out-file "$2" "$1"
}

status=0
for library in "${shared_libraries[@]}"; do
  name=$(basename "$library")
  describe "$build/$library.so" "$build/$name.abi"
  if [ "$accept" = yes ]; then
    cp "$build/$name.abi" "tests/abi/$name.abi"
  elif abidiff "tests/abi/$name.abi" "$build/$name.abi"; then
    echo "$name is as described"
  else
    status=1
  fi
done
exit $status
