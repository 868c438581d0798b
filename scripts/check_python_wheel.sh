#!/usr/bin/env bash
# Builds an archive of the Python package and, from that, a wheel, with Debian's packages alone, and uses
# the wheel in a fresh virtual environment, which has no other package.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${build_packages[@]}" nlohmann-json3-dev libutfcpp-dev pybind11-dev python3-build python3-dev \
  python3-pip python3-skbuild python3-venv

out=build/wheel
rm -rf "$out"
quietly "$out/build.log" /usr/bin/python3 -m build --no-isolation --outdir "$out" .

/usr/bin/python3 -m venv "$out/environment"
# An environment or a shell's configuration must not help.
python=(env -i "$out/environment/bin/python" -I)
quietly "$out/pip.log" "${python[@]}" -m pip install --no-index --no-deps "$out"/*.whl
extension=$("${python[@]}" -c 'import quill_inp._core; print(quill_inp._core.__file__)')
if ldd "$extension" | grep -E 'kelp|not found'; then
  echo "the wheel needs the libraries above" >&2
  exit 1
fi
"${python[@]}" - <<'PROGRAM'
import importlib.metadata

import quill_inp

document = quill_inp.read("examples/inputs/water_optimisation.qin")
with quill_inp.edit(str(document)) as editor:
    editor.set_parameter("opt", "maxiter", "100")
assert "maxiter=100" in editor.text
assert quill_inp.lint("#\n")
assert document.to_dict()["geometry"]["kind"] == "atoms"
(found,) = importlib.metadata.entry_points(group="ase.ioformats")
assert (found.name, found.value) == ("quill-inp", "quill_inp.ase:ase_format")
PROGRAM
[ -f "$(dirname "$extension")/py.typed" ] || { echo "the wheel has no types" >&2; exit 1; }
version=$(sed -n 's/^  VERSION \(.*\)$/\1/p' CMakeLists.txt)
[ "$("${python[@]}" -c 'import quill_inp; print(quill_inp.__version__)')" = "$version" ]
echo "$(basename "$out"/*.whl) works in a new environment"
