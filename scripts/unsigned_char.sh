#!/usr/bin/env bash
# Runs every test, or those of one folder, with a char that has no sign, as on other processors.
#
#   scripts/unsigned_char.sh [unit | interface]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}"

folder=${1:+tests/$1}
cmake --preset unsigned-char
cmake --build --preset unsigned-char ${folder:+--target "$folder/all"}
ctest --test-dir "build/unsigned-char/$folder" --output-on-failure --no-tests=error -j "$(nproc)"
