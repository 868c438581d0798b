#!/usr/bin/env bash
# Fails on any finding of cppcheck or of g++'s analyzer in the libraries, the tools and the examples.
# scripts/support/cppcheck_suppressions.txt says what is left out of the first and why. The second
# is run without its check for values that are not initialised: g++ 12 takes every object that a
# function returns by value for one.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${build_packages[@]}" cppcheck libcli11-dev nlohmann-json3-dev

cppcheck --quiet --error-exitcode=1 -j "$(nproc)" --std=c++17 --language=c++ \
  --enable=warning,style,performance,portability \
  --suppressions-list=scripts/support/cppcheck_suppressions.txt \
  -I include -I src/support -I src -I tools src sisters examples tools
echo "cppcheck has no findings"

log=build/analyzer/build.log
mkdir -p build/analyzer
if ! { cmake --preset analyzer && cmake --build --preset analyzer; } >"$log" 2>&1; then
  grep -E 'error:|warning:' "$log" >&2 || tail -n 30 "$log" >&2
  echo "The whole output is in $log." >&2
  exit 1
fi
echo "g++'s analyzer has no findings"
