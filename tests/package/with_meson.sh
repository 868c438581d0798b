#!/bin/sh
# Builds and runs the consumer with Meson:
#
#   with_meson.sh COMPILER FOLDER_OF_PC_FILES SCRATCH_FOLDER
set -eu

export CXX="$1"
export PKG_CONFIG_LIBDIR="$2"
scratch=$3
folder=$(dirname "$0")/consumer

rm -rf "$scratch"
meson setup "$scratch" "$folder"
meson test -C "$scratch" --print-errorlogs
