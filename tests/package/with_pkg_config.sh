#!/bin/sh
# Builds and runs the consumer with the flags that pkg-config prints, in two standards:
#
#   with_pkg_config.sh COMPILER FOLDER_OF_PC_FILES SCRATCH_FOLDER
set -eu

compiler=$1
export PKG_CONFIG_LIBDIR="$2"
scratch=$3
folder=$(dirname "$0")/consumer

mkdir -p "$scratch"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir kelp_quill_inp)
export LD_LIBRARY_PATH

# run SOURCE STANDARD PACKAGE
run() {
  # The flags must be split into words, and no folder of this test has a blank in its name.
  # shellcheck disable=SC2046
  "$compiler" "-std=c++$2" -Wall -Wextra -Wpedantic -Werror "$folder/$1.cpp" -o "$scratch/$1_$2" \
    $(pkg-config --cflags --libs "$3 >= 0.1")
  "$scratch/$1_$2"
}

run minimal 17 kelp_quill_inp
run main 17 kelp_quill_inp
run main 20 kelp_quill_inp
run lossless 17 kelp_quill_lossless
