#!/usr/bin/env bash
# Does what docs/packaging.md says, block by block, in a copy of the tree: shell blocks are run; C++,
# CMake and Meson blocks become main.cpp, CMakeLists.txt and meson.build in my_program. Also fails when the page
# does not list an option.
#
#   page_runs.sh TREE SCRATCH_FOLDER
set -euo pipefail

tree=$1
scratch=$2
page=$tree/docs/packaging.md

rm -rf "$scratch"
mkdir -p "$scratch/home" "$scratch/tree/my_program"
cd "$tree"
cp -r CMakeLists.txt CMakePresets.json *.md cmake docs editors examples include lossless sisters src \
  "$scratch/tree"
ln -s .. "$scratch/tree/my_program/libkelp_quill_inp"

grep -oE '^(option|set)\(KELP_QUILL_INP_[A-Z_]+( "|$)' cmake/options.cmake |
  grep -oE 'KELP_[A-Z_]+' | while read -r option; do
  if ! grep -qF "| \`$option\` |" "$page"; then
    echo "$page does not tell of $option" >&2
    exit 1
  fi
done

awk '
  /^```$/ && inside { if (inside != "sh") print "END_OF_BLOCK"; inside = ""; next }
  /^```cpp$/ { print "cat >my_program/main.cpp <<\"END_OF_BLOCK\""; inside = "cpp"; next }
  /^```cmake$/ { print "cat >my_program/CMakeLists.txt <<\"END_OF_BLOCK\""; inside = "cmake"; next }
  /^```meson$/ { print "cat >my_program/meson.build <<\"END_OF_BLOCK\""; inside = "meson"; next }
  /^```sh$/ { inside = "sh"; next }
  inside { print }
' "$page" >"$scratch/commands"

cd "$scratch/tree"
HOME=$scratch/home bash -euxo pipefail "$scratch/commands" >"$scratch/output" 2>"$scratch/errors" || {
  tail -n 30 "$scratch/output" "$scratch/errors" >&2
  exit 1
}
# The program is run five times, with the library found in five ways.
if [ "$(grep -c '^#model = m1$' "$scratch/output")" -ne 5 ]; then
  cat "$scratch/output" >&2
  exit 1
fi
