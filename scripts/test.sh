#!/usr/bin/env bash
# Installs what is missing, builds everything with warnings as errors and runs every test.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${test_packages[@]}"
cmake --workflow --preset dev
