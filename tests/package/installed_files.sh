#!/bin/sh
# Installs each component into a separate folder and compares the files there with a list, whose lines
# are a component and a file:
#
#   installed_files.sh CMAKE BUILD_FOLDER SCRATCH_FOLDER LIST
#
# The files of the component documentation are not listed one by one: it has a folder of its own.
set -eu
export LC_ALL=C

cmake=$1
build=$2
scratch=$3
list=$4

rm -rf "$scratch"
mkdir -p "$scratch"
for component in runtime development tool documentation; do
  "$cmake" --install "$build" --prefix "$scratch/$component" --component "$component" >/dev/null
done

found=$(cd "$scratch" && find . ! -type d | sed -e 's:^\./::' -e 's:/: :' \
  -e 's:^documentation share/doc/kelp_quill_inp/.*:documentation share/doc/kelp_quill_inp/*:' |
  sort -u)
printf '%s\n' "$found" | diff -u --label "in the list" --label "installed" "$list" -
