#!/usr/bin/env bash
# Exchanges structures with Debian's ASE, pymatgen and RDKit, writes many inputs on its Dask, and shows
# documents in its browser. It installs these packages, which are large: scripts/test.sh does without them.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" chromium python3-ase python3-distributed python3-pymatgen python3-rdkit
build_preset dev kelp_quill_inp_python

export PYTHONPATH=$PWD/build/dev/python
export KELP_QUILL_INP_XYZ_DIR=${KELP_QUILL_INP_XYZ_DIR:-$(realpath -m ../shared/data/xyz)}
[ -d "$KELP_QUILL_INP_XYZ_DIR" ] || {
  echo "KELP_QUILL_INP_XYZ_DIR names no folder of XYZ files: $KELP_QUILL_INP_XYZ_DIR" >&2
  exit 1
}
/usr/bin/python3 -B -m pytest -q -p no:cacheprovider tests/python/neighbours
/usr/bin/python3 -B -m mypy --strict --no-incremental --cache-dir=/dev/null \
  tests/python/neighbours/typed_use.py
