#!/bin/sh
# Builds a plugin from the static libraries themselves, as build systems do that know no flags of
# pkg-config's, and fails when it exports functions of theirs or stays in memory:
#
#   with_archives.sh COMPILER PREFIX SCRATCH_FOLDER
set -eu

compiler=$1
prefix=$2
scratch=$3
folder=$(dirname "$0")/consumer

mkdir -p "$scratch"
"$compiler" -std=c++17 "$folder/plugin_host.cpp" -o "$scratch/plugin_host" -ldl
"$compiler" -std=c++17 -O2 -shared -fPIC -fvisibility=hidden -DKELP_QUILL_INP_STATIC \
  "-I$prefix/include" "$folder/plugin.cpp" -o "$scratch/plugin.so" \
  "$prefix/lib/libkelp_quill_inp.a" "$prefix/lib/libkelp_core_text.a" \
  "$prefix/lib/libkelp_chem_elements.a"

# A letter u marks what is unique in the process.
if nm --dynamic --defined-only --demangle "$scratch/plugin.so" | grep -E ' u |kelp::'; then
  echo "the plugin exports the names above" >&2
  exit 1
fi
"$scratch/plugin_host" "$scratch/plugin.so"
