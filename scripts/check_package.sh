#!/usr/bin/env bash
# Installs what is missing, then builds, installs and moves the libraries in every form and has a
# project outside the tree use each: found by CMake or pkg-config, included as sources, shared and
# static, with g++ and clang++, as C++17 and C++20.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${tool_packages[@]}" clang meson pkg-config

build=build/package
rm -rf "$build"
cmake -S tests/package -B "$build" -G Ninja >/dev/null
ctest --test-dir "$build" --parallel 2 --output-on-failure --no-tests=error
