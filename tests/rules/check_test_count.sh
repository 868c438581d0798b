#!/bin/sh
# Fails when a build has fewer tests than it is known to have had:
#
#   check_test_count.sh CTEST BUILD LEAST
set -eu

found=$("$1" --test-dir "$2" --show-only | sed -n 's/^Total Tests: \([0-9]*\)$/\1/p')
if [ "${found:-0}" -lt "$3" ]; then
  echo "there are ${found:-0} tests, and there were at least $3" >&2
  exit 1
fi
echo "there are $found tests"
