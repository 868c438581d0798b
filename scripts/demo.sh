#!/usr/bin/env bash
# Installs what is missing, builds the examples, the tool and the Python package and runs them on real
# inputs: one is read and written back, a careless one is read for its diagnostics, and one is edited.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${tool_packages[@]}" pybind11-dev python3-dev python3-numpy

build=build/demo
echo "Building in $build ..."
build_preset demo

inputs=examples/inputs
echo
echo "== Reading $inputs/water_optimisation.qin and writing it to $build/water.qin"
"$build/examples/read_write" "$inputs/water_optimisation.qin" "$build/water.qin"

echo
echo "== Reading $inputs/careless.qin: every problem is named, no line is lost silently"
"$build/examples/read_write" "$inputs/careless.qin"

echo
echo "== Setting maxiter of opt to 100 in $build/water.qin: what changes"
"$build/examples/edit_input" "$build/water.qin" "$build/water_edited.qin"
diff -u "$build/water.qin" "$build/water_edited.qin" || [ $? -eq 1 ]

echo
echo "== Building a new input for formaldehyde, $build/formaldehyde.qin"
"$build/examples/build_input" "$build/formaldehyde.qin"

echo
echo "== The same at the shell: quill-inp shows, edits and refuses what would be read differently"
"$build/tools/quill-inp/quill-inp" show "$inputs/hydrogen_peroxide_scan.qin"
"$build/tools/quill-inp/quill-inp" set --diff "$inputs/cisplatin_by_hand.qin" opt.maxiter=100 ||
  [ $? -eq 1 ]
"$build/tools/quill-inp/quill-inp" add "$build/water.qin" --angle 2,1,3 || [ $? -eq 2 ]

echo
echo "== The same in Python: coordinates as an array, and an edit that changes one line of $build/water.qin"
PYTHONPATH=$build/python /usr/bin/python3 -B - "$build/water.qin" <<'PROGRAM'
import sys

import quill_inp

print(quill_inp.read(sys.argv[1]).geometry.positions)
with quill_inp.edit_file(sys.argv[1]) as editor:
    editor.set_parameter("opt", "maxiter", "200")
print(quill_inp.read(sys.argv[1]).find_command("opt"))
PROGRAM
