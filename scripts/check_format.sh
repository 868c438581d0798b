#!/usr/bin/env bash
# Fails when a source is not laid out as .clang-format says; names the lines.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

find include src sisters lossless tools python examples tests bench fuzz -name '*.[ch]pp' -print0 |
  xargs -0 clang-format-14 --dry-run -Werror
echo "all sources are laid out as .clang-format says"
