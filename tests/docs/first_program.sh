#!/usr/bin/env bash
# Does what docs/getting-started.md says: makes the two files of its project, builds them next to the
# tree and runs the program.
#
#   first_program.sh TREE SCRATCH CXX
set -euo pipefail
tree=$1
scratch=$2
export CXX=$3
page=$tree/docs/getting-started.md

# block LANGUAGE NUMBER: one of the page's code blocks.
block() {
  awk -v fence="\`\`\`$1" -v wanted="$2" '
    /^```/ { inside = !inside; counts = inside && $0 == fence; count += counts; next }
    inside && counts && count == wanted
  ' "$page"
}

rm -rf "$scratch"
mkdir -p "$scratch/my_program"
ln -s "$tree" "$scratch/libkelp_quill_inp"
cd "$scratch/my_program"
block cmake 1 >CMakeLists.txt
block cpp 1 >main.cpp
block sh 2 >commands
block text 1 >expected

bash -e commands >output
tail -n "$(wc -l <expected)" output | diff expected -
