#!/usr/bin/env bash
# Does what docs/getting-started.md says, in a new folder next to the tree: makes the two files of its
# project, builds and runs the program, and then a program of the page's pieces of code. With the last
# argument it also builds, installs and uses the tool, which takes longer.
#
#   first_program.sh TREE SCRATCH CXX [and-the-tool]
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/blocks.sh"
tree=$1
scratch=$2
export CXX=$3
what=${4:-}
page=$tree/docs/getting-started.md

block() { block_of "$page" "$@"; }

rm -rf "$scratch"
mkdir -p "$scratch/my_program" "$scratch/home"
if [ "$what" = and-the-tool ]; then
  mkdir "$scratch/libkelp_quill_inp"
  (cd "$tree" && cp -r CMakeLists.txt CMakePresets.json *.md cmake docs editors examples include lossless \
    sisters src tools "$scratch/libkelp_quill_inp")
else
  ln -s "$tree" "$scratch/libkelp_quill_inp"
fi
cd "$scratch/my_program"

# build_and_run: as the page says; its last lines are what the program prints.
block sh 2 >"$scratch/build_and_run"
build_and_run() {
  bash -e "$scratch/build_and_run" >"$scratch/output" || {
    cat "$scratch/output" >&2
    exit 1
  }
}

block cmake 1 >CMakeLists.txt
block cpp 1 >main.cpp
build_and_run
block text 1 >"$scratch/expected"
tail -n "$(wc -l <"$scratch/expected")" "$scratch/output" | diff "$scratch/expected" -

# The second block of C++ are the lines for the top, and the others pieces for main. Each has a scope
# of its own, since their names repeat.
block sh 3 >"$scratch/inputs"
bash -e "$scratch/inputs"
{
  block cpp 2
  sed '/^int main/,$d' <(block cpp 1)
  echo "int main() {"
  number=3
  while piece=$(block cpp $number) && [ -n "$piece" ]; do
    printf '{\n%s\n}\n' "$piece"
    number=$((number + 1))
  done
  echo 'std::cout << "all pieces ran\n"; }'
} >main.cpp
build_and_run
tail -n 1 "$scratch/output" | diff <(echo "all pieces ran") -
[ "$what" = and-the-tool ] || exit 0

# The lines for a shell, and a session: each command is printed before what it prints.
{
  echo 'exec 3>&1 >&2'
  block sh 4
  echo 'exec >&3'
  block console 1 | sed -n "s/^\\$ \(.*\)$/printf '%s\\\\n' '$ \1'\n\1/p"
} >"$scratch/session"
HOME=$scratch/home bash -e "$scratch/session" >"$scratch/output" 2>"$scratch/log" || {
  tail -n 30 "$scratch/log" >&2
  exit 1
}
diff <(block console 1) "$scratch/output"

# README.md has the same lines for the tool, and no others.
awk '/^## In the shell$/ { here = 1 } /^```sh$/ && here { inside = 1; next } /^```/ && inside { exit }
  inside' "$tree/README.md" | diff - <(block sh 4 | sed '/^cd /d; /^cp /d')
