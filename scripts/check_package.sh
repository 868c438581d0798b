#!/usr/bin/env bash
# Installs what is missing, then builds, installs and moves the libraries in every form and has a
# project outside the tree use each: found by CMake, pkg-config, Meson or Python's ctypes, in a program
# and in a plugin, included as sources, shared and static, with g++ and clang++, as C++17 and C++20.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${tool_packages[@]}" clang meson pkg-config python3

# Programs find the libraries without help.
unset LD_LIBRARY_PATH

build=build/package
rm -rf "$build"
cmake -S tests/package -B "$build" -G Ninja >/dev/null
ctest --test-dir "$build" --parallel 2 --output-on-failure --no-tests=error
