"""Files that inputs refer to, as structures of ASE."""

import pathlib

import ase.io
import numpy
import pytest
from ase.constraints import FixAtoms
from structures import losses, quietly

import quill_inp
import quill_inp.ase

# What ASE reads of each: the number of frames and of atoms.
READABLE = {
    "benzene.xyz": (1, 12),
    "butane_exponents.xyz": (1, 14),
    "chlorophyll.xyz": (1, 137),
    "cisplatin.xyz": (1, 11),
    "cluster_tabs_charged.xyz": (1, 12),
    "diels_alder_path.xyz": (17, 31),
    "hydroxide.xyz": (1, 2),
    "methyl_mixed_ends.xyz": (1, 5),
    "pd_dppf.xyz": (1, 68),
    "pd_tbuxantphos_crlf.xyz": (1, 85),
    "ruthenium_carbene.xyz": (1, 19),
    "serine.xyz": (1, 14),
    "taxol.xyz": (1, 113),
    "trpcage_two_frames.xyz": (2, 284),
    "uranyl.xyz": (1, 3),
    "water.xyz": (1, 3),
    "water_opt_trajectory.xyz": (12, 3),
}


@pytest.mark.parametrize("name", READABLE)
def test_a_referenced_file_is_read_relative_to_base_and_comes_back_inline(name, geometries):
    document = quill_inp.loads(f"#sp\n\n-1 2\nXYZTRAJ {name}\n")
    images = quietly(quill_inp.ase.to_atoms, document, base=geometries, index=":")
    assert (len(images), len(images[0])) == READABLE[name]
    for atoms, frame in zip(images, ase.io.read(geometries / name, ":")):
        assert numpy.array_equal(atoms.positions, frame.positions)
        inline = quill_inp.ase.from_atoms(atoms)
        assert inline.geometry.symbols == frame.get_chemical_symbols()
        assert (inline.geometry.charge, inline.geometry.multiplicity) == (-1, 2)
        assert inline.commands == document.commands
        again = quill_inp.ase.to_atoms(quill_inp.loads(str(inline)))
        assert numpy.allclose(again.positions, frame.positions, rtol=0, atol=5.001e-7)


@pytest.mark.parametrize(
    "name", ["element_numbers.xyz", "ghost_charges_crlf.xyz", "glycine_bare.xyz"]
)
def test_a_file_that_ase_cannot_read_is_named(name, geometries):
    document = quill_inp.loads(f"#sp\n\nXYZ {name}\n")
    with pytest.raises(ValueError, match=f"ASE cannot read '.*{name}' as XYZ: "):
        quill_inp.ase.to_atoms(document, geometries)


def test_a_file_with_words_for_numbers_is_named(tmp_path):
    (tmp_path / "words.xyz").write_text("1\n\nH 0 0 zero\n")
    with pytest.raises(ValueError, match="ASE cannot read '.*words.xyz' as XYZ: "):
        quill_inp.ase.to_atoms(quill_inp.loads("#sp\n\nXYZ words.xyz\n"), tmp_path)


def test_a_comment_that_is_not_utf_8_does_not_matter(tmp_path):
    (tmp_path / "latin.xyz").write_bytes(b"1\ncaf\xe9\nHe 0 0 1\n")
    atoms = quill_inp.ase.to_atoms(quill_inp.loads("#sp\n\nXYZ latin.xyz\n"), tmp_path)
    assert atoms.get_chemical_symbols() == ["He"]


def test_constraints_of_a_file_stay_beside_those_of_the_input(tmp_path):
    frame = ase.io.read(pathlib.Path(__file__).parents[3] / "examples/inputs/structures/water.xyz")
    frame.set_constraint(FixAtoms([2]))
    ase.io.write(tmp_path / "held.xyz", frame, columns=["symbols", "positions", "move_mask"])
    document = quill_inp.loads("#opt\n\nXYZ held.xyz\n\nC 1\n")
    atoms = quill_inp.ase.to_atoms(document, tmp_path)
    assert [one.get_indices().tolist() for one in atoms.constraints] == [[2], [0]]


def test_without_coordinates_paths_mean_nothing(geometries):
    document = quill_inp.QuillInput(geometry=quill_inp.GeometryBlock(xyz_files=["water.xyz"]))
    assert quill_inp.ase.to_atoms(document, geometries, ":") == []


def test_a_missing_file_is_an_error_of_open(tmp_path):
    with pytest.raises(FileNotFoundError, match="missing.xyz"):
        quill_inp.ase.to_atoms(quill_inp.loads("#sp\n\nXYZ missing.xyz\n"), tmp_path)


def test_base_is_the_current_folder_by_default(geometries, monkeypatch):
    monkeypatch.chdir(geometries)
    assert len(quill_inp.ase.to_atoms(quill_inp.loads("#sp\n\nXYZ water.xyz\n"))) == 3


def test_several_files_are_several_structures_in_order(geometries):
    document = quill_inp.loads("#sp\n\nXYZ water.xyz\nXYZ hydroxide.xyz\nXYZ uranyl.xyz\n")
    sizes = [len(one) for one in quill_inp.ase.to_atoms(document, str(geometries), slice(None))]
    assert sizes == [3, 2, 3]
    assert len(quill_inp.ase.to_atoms(document, geometries, 1)) == 2
    assert len(quill_inp.ase.to_atoms(document, geometries, "-2")) == 2
    assert [len(one) for one in quill_inp.ase.to_atoms(document, geometries, "1:")] == [2, 3]


def test_only_the_first_path_of_a_trajectory_counts(geometries):
    document = quill_inp.loads("#sp\n\nXYZTRAJ water.xyz\n")
    document.geometry.xyz_files.append("hydroxide.xyz")
    assert len(quill_inp.ase.to_atoms(document, geometries)) == 3


@pytest.mark.parametrize(
    ("text", "count"),
    [("#sp\n\n0 1\n", 0), ("#sp\n\nXYZTRAJ water_opt_trajectory.xyz\n", 12)],
)
def test_without_an_index_there_must_be_one_structure(text, count, geometries):
    with pytest.raises(ValueError) as caught:
        quill_inp.ase.to_atoms(quill_inp.loads(text), geometries)
    assert str(caught.value) == (
        f"the document has {count} structures; choose by an index, such as 0 or ':'"
    )


def test_constraints_have_the_values_of_each_frame(geometries):
    document = quill_inp.loads("#opt\n\nXYZTRAJ water_opt_trajectory.xyz\n\nB 1 2\nPOST a.txt\n")
    images, message = losses(quill_inp.ase.to_atoms, document, geometries, ":")
    assert message == "ASE has no place for: 'POST a.txt'"
    for atoms in images:
        assert atoms.constraints[0].bonds == [[atoms.get_distance(0, 1), [0, 1]]]
    assert images[0].constraints[0].bonds != images[-1].constraints[0].bonds
