"""The format of ASE."""

import sys
import types

import ase.io
import numpy
import pytest
from ase.constraints import FixInternals
from structures import peroxide, quietly, water

import quill_inp
import quill_inp.ase


@pytest.fixture
def registered():
    quill_inp.ase.register_format()
    quill_inp.ase.register_format()


def test_a_registered_format_reads_and_writes_files(registered, tmp_path):
    document = peroxide("C 1")
    document.write_file(tmp_path / "a.qin")
    atoms = ase.io.read(tmp_path / "a.qin")
    atoms.positions[0, 0] = -0.75
    ase.io.write(tmp_path / "b.qin", atoms)
    document.geometry.atoms[0].x = -0.75
    assert quill_inp.read(tmp_path / "b.qin") == quill_inp.loads(str(document))


def test_a_registered_format_finds_files_beside_the_input(registered, tmp_path, geometries):
    (tmp_path / "path.xyz").write_bytes((geometries / "water_opt_trajectory.xyz").read_bytes())
    (tmp_path / "a.qin").write_text("#irc\n\nXYZTRAJ path.xyz\n")
    images = ase.io.read(tmp_path / "a.qin", ":")
    assert len(images) == 12
    last = ase.io.read(str(tmp_path / "a.qin"))
    assert numpy.array_equal(last.positions, images[-1].positions)


def test_arguments_of_ase_write_reach_the_input(registered, tmp_path):
    ase.io.write(tmp_path / "a.inp", water(), format="quill-inp", charge=1, multiplicity=2)
    assert (tmp_path / "a.inp").read_text().startswith("1 2\nO ")


def test_a_file_is_replaced_as_a_whole(registered, tmp_path):
    path = tmp_path / "a.qin"
    path.write_text("#sp\n\nXYZ a.xyz\n")
    with open(path, encoding="utf-8") as opened_before:
        ase.io.write(path, water())
        assert opened_before.read() == "#sp\n\nXYZ a.xyz\n"
    assert quill_inp.read(path).geometry.symbols == ["O", "H", "H"]
    assert list(tmp_path.iterdir()) == [path]


def test_several_structures_are_not_one_input(registered, tmp_path):
    with pytest.raises(ValueError, match="an input has the atoms of one structure, not of 2"):
        ase.io.write(tmp_path / "a.qin", [water(), water()])
    assert list(tmp_path.iterdir()) == []


def test_a_text_that_would_say_something_else_is_not_written(registered, tmp_path):
    atoms = water(constraint=FixInternals(angles_deg=[[None, [1, 0, 2]]]))
    with pytest.raises(quill_inp.LossError):
        ase.io.write(tmp_path / "a.qin", atoms)
    assert list(tmp_path.iterdir()) == []


def test_the_entry_point_of_newer_versions_describes_the_same_format(registered, monkeypatch):
    plugins = types.ModuleType("ase.utils.plugins")
    plugins.ExternalIOFormat = dict
    monkeypatch.setitem(sys.modules, "ase.utils.plugins", plugins)
    described = quill_inp.ase.ase_format
    known = ase.io.formats.ioformats["quill-inp"]
    assert described == {
        "desc": known.description,
        "code": known.code,
        "module": "quill_inp.ase",
        "ext": known.extensions[0],
    }
    with pytest.raises(AttributeError, match="has no attribute 'other'"):
        quill_inp.ase.other


def test_the_example_of_the_module_runs(tmp_path, monkeypatch, water_text, capsys):
    (tmp_path / "water.qin").write_text(water_text.replace("S 1 3 1.5 10\n", ""))
    monkeypatch.chdir(tmp_path)
    lines = quill_inp.ase.__doc__.splitlines()
    quietly(exec, "\n".join(line[4:] for line in lines if line.startswith("    ")), {})
    assert capsys.readouterr().out.startswith("#opt(maxiter=50, tight)\n#model = small-organic\n")
