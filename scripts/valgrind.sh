#!/usr/bin/env bash
# Runs the unit and interface tests, or those of one folder, under valgrind; an error or a leak fails.
# Tests that try thousands of numbers and texts are left out, since they run the same code each time.
#
#   scripts/valgrind.sh [unit | interface]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

build_preset dev

# A program that counts its allocations, or makes them fail, keeps its own operator new; valgrind checks
# the calls of malloc in it.
own_new=--soname-synonyms=somalloc=nouserintercepts
many='*AsStrtod*:*AsPrintf*:*Halfway*:*Random*:*OfEvery*:*OfFixedNotation*'
if [ $# -eq 0 ]; then set -- unit interface; fi
status=0
while IFS= read -r program; do
  name=$(basename "$program")
  output=build/dev/$name.valgrind.log
  if valgrind --quiet --leak-check=full --errors-for-leak-kinds=definite,indirect,possible \
    "$own_new" --error-exitcode=9 --log-file="$output" "$program" --gtest_brief=1 \
    --gtest_filter="-$many" >"$output.tests" 2>&1; then
    printf '%-45s no errors\n' "$name"
  else
    status=1
    printf '%-45s fails\n' "$name" >&2
    cat "$output.tests" "$output" >&2
  fi
done < <(find "${@/#/build/dev/tests/}" -name 'kelp_quill_inp_*_test' -type f -executable | sort)
exit "$status"
