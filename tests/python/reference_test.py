"""The reference describes the whole package, as it is."""

import importlib
import inspect
import subprocess
import sys

import pytest

import quill_inp
from documentation_test import ROOT

REFERENCE = ROOT / "docs/python-reference.md"
WRITER = ROOT / "scripts/support/write_python_reference.py"
MODULES = ["quill_inp", "quill_inp.ase", "quill_inp.pymatgen", "quill_inp.rdkit"]


def test_the_reference_is_what_is_written_of_the_package():
    written = subprocess.run([sys.executable, "-B", WRITER], capture_output=True, text=True)
    assert written.stderr == ""
    assert written.stdout == REFERENCE.read_text(encoding="utf-8"), f"run {WRITER.name} again"


def names_of_members(kind):
    """Returns the names that a class has besides those of the classes of Python."""
    own = [one for one in kind.__mro__ if one.__module__.startswith("quill_inp")]
    return {name for one in own for name in vars(one) if not name.startswith("_")}


@pytest.mark.parametrize("module", MODULES)
def test_every_public_name_is_in_the_reference(module):
    page = REFERENCE.read_text(encoding="utf-8")
    for name in importlib.import_module(module).__all__:
        (entry,) = [one for one in page.split("\n### ")[1:] if one.startswith(f"{name}\n")]
        thing = getattr(importlib.import_module(module), name)
        assert thing.__doc__.split()[0] in entry
        for member in names_of_members(thing) if inspect.isclass(thing) else ():
            assert f"`{member}`" in entry or f"\n{member}" in entry, f"{name}.{member}"


def test_the_package_lists_its_public_names():
    listed = set(quill_inp.__all__)
    assert {name for name in vars(quill_inp) if not name.startswith("_")} - listed <= {
        "ase",
        "pymatgen",
        "rdkit",
    }
