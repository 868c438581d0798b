#!/bin/sh
# Fails when a source of the tests is not built, or is named as a test and has none:
#
#   check_test_sources.sh TESTS LIST_OF_SOURCES
#
# The list has one source on each line, as an absolute path. Consumers of the installed library are
# projects of their own, in the folder "package", and what a compiler must refuse, in folders "refused",
# is given to it by tests.
set -eu
export LC_ALL=C

tests=$1
list=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

find "$tests" \( -path "$tests/package" -o -name refused \) -prune -o -name '*.cpp' -print | sort -u >"$scratch/there"
if [ ! -s "$scratch/there" ]; then
  echo "there are no sources in $tests" >&2
  exit 1
fi
sort -u "$list" >"$scratch/built"

comm -23 "$scratch/there" "$scratch/built" | sed 's/$/: is not built/' >"$scratch/findings"
grep '_test\.cpp$' "$scratch/there" |
  xargs -r grep -LE '^(TEST|TEST_F|TEST_P|TYPED_TEST|TYPED_TEST_P)\(|^static_assert\(' |
  sed 's/$/: has no test/' >>"$scratch/findings"
if [ -s "$scratch/findings" ]; then
  cat "$scratch/findings" >&2
  exit 1
fi
echo "$(wc -l <"$scratch/there") sources are built"
