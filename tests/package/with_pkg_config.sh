#!/bin/sh
# Builds and runs the consumer with what pkg-config says of the library, in two standards:
#
#   with_pkg_config.sh COMPILER FOLDER_OF_PC_FILES SCRATCH_FOLDER
set -eu

compiler=$1
export PKG_CONFIG_LIBDIR="$2"
scratch=$3
source=$(dirname "$0")/consumer/main.cpp

mkdir -p "$scratch"
for standard in 17 20; do
  # The flags are words, and no folder of this test has a blank in its name.
  # shellcheck disable=SC2046
  "$compiler" -std=c++$standard -Wall -Wextra -Wpedantic -Werror "$source" \
    -o "$scratch/consumer_cxx$standard" $(pkg-config --cflags --libs 'kelp_quill_inp >= 0.1') \
    "-Wl,-rpath,$(pkg-config --variable=libdir kelp_quill_inp)"
  "$scratch/consumer_cxx$standard"
done
