#!/bin/sh
# Builds and installs a project that includes the library as a folder, moves what is installed, removes
# the build and runs the program:
#
#   installed_parent.sh TREE SCRATCH_FOLDER [OPTION...]
set -eu

tree=$1
scratch=$2
shift 2

rm -rf "$scratch"
cmake -S "$(dirname "$0")/parent" -B "$scratch/build" -G Ninja -DCMAKE_INSTALL_LIBDIR=lib \
  "-DKELP_QUILL_INP_SOURCE=$tree" "$@"
cmake --build "$scratch/build"
cmake --install "$scratch/build" --prefix "$scratch/before"
rm -rf "$scratch/build"
mv "$scratch/before" "$scratch/installed"
"$scratch/installed/bin/parent"
