#!/bin/sh
# Builds the consumer in two standards, the one for front ends and a plugin, with the flags that
# pkg-config prints, and runs them:
#
#   with_pkg_config.sh COMPILER FOLDER_OF_PC_FILES SCRATCH_FOLDER
#
# The programs name only the folder of the library itself.
set -eu

compiler=$1
export PKG_CONFIG_LIBDIR="$2"
scratch=$3
folder=$(dirname "$0")/consumer

mkdir -p "$scratch"
libdir=$(pkg-config --variable=libdir kelp_quill_inp)

# build PACKAGE RESULT SOURCE FLAG...
build() {
  flags=$(pkg-config --cflags --libs "$1 >= 0.1")
  result=$scratch/$2
  source=$folder/$3
  shift 3
  # The flags must be split into words, and no folder of this test has a blank in its name.
  # shellcheck disable=SC2086
  "$compiler" -Wall -Wextra -Wpedantic -Werror "$source" -o "$result" "$@" $flags \
    "-Wl,-rpath,$libdir"
}

# run SOURCE STANDARD PACKAGE
run() {
  build "$3" "$1_$2" "$1.cpp" "-std=c++$2"
  "$scratch/$1_$2"
}

run minimal 17 kelp_quill_inp
run main 17 kelp_quill_inp
run main 20 kelp_quill_inp
run lossless 17 kelp_quill_lossless

build kelp_quill_inp plugin_host plugin_host.cpp -std=c++17 -ldl
build kelp_quill_inp plugin.so plugin.cpp -std=c++17 -O2 -shared -fPIC -fvisibility=hidden \
  -fvisibility-inlines-hidden
sh "$folder/exports_only.sh" "$scratch/plugin.so" plugin_answer
"$scratch/plugin_host" "$scratch/plugin.so"
