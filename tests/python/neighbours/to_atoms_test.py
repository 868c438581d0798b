"""Documents as structures of ASE."""

import copy
import math
import pickle

import ase.io
import numpy
import pytest
from ase.calculators.emt import EMT
from ase.constraints import FixAtoms, FixInternals
from ase.optimize import BFGS
from structures import losses, peroxide, quietly

import quill_inp
import quill_inp.ase


def test_the_inline_atoms_are_the_structure():
    atoms = quietly(quill_inp.ase.to_atoms, peroxide())
    assert atoms.get_chemical_symbols() == ["H", "O", "O", "H"]
    assert numpy.array_equal(atoms.positions, peroxide().geometry.positions)
    assert (atoms.info["charge"], atoms.info["multiplicity"]) == (1, 2)
    assert atoms.constraints == [] and not atoms.pbc.any()


def test_without_their_line_charge_and_multiplicity_are_not_said():
    document = quill_inp.loads("#sp\n\nHe 0 0 0\n")
    atoms = quietly(quill_inp.ase.to_atoms, document)
    assert sorted(atoms.info) == ["quill_inp"]
    assert quietly(quill_inp.ase.from_atoms, atoms) == document


def test_a_structure_without_commands_keeps_nothing_for_later():
    atoms = quill_inp.ase.to_atoms(quill_inp.loads("0 1\nHe 0 0 0\n"))
    assert atoms.info == {"charge": 0, "multiplicity": 1}


def test_constraints_have_the_values_of_the_structure_and_count_atoms_from_0():
    document = peroxide("B 2 3", "C 4", "A 1 2 3", "D 1 2 3 4", "C 1", "B 3 4")
    atoms = quietly(quill_inp.ase.to_atoms, document)
    fixed, internal = atoms.constraints
    assert isinstance(fixed, FixAtoms) and fixed.get_indices().tolist() == [3, 0]
    assert isinstance(internal, FixInternals)
    assert internal.bonds == [[atoms.get_distance(*ends), list(ends)] for ends in [(1, 2), (2, 3)]]
    assert internal.angles == [[atoms.get_angle(0, 1, 2), [0, 1, 2]]]
    assert internal.dihedrals == [[atoms.get_dihedral(0, 1, 2, 3), [0, 1, 2, 3]]]


def test_a_relaxation_holds_what_the_constraints_fix():
    atoms = quill_inp.ase.to_atoms(peroxide("B 2 3", "A 1 2 3"))
    atoms.calc = EMT()
    before = atoms.get_distance(1, 2), atoms.get_angle(0, 1, 2), atoms.get_distance(0, 1)
    BFGS(atoms, logfile=None).run(steps=5)
    after = atoms.get_distance(1, 2), atoms.get_angle(0, 1, 2), atoms.get_distance(0, 1)
    assert after[:2] == pytest.approx(before[:2], abs=1e-4)
    assert after[2] != pytest.approx(before[2], abs=1e-2)
    again = quietly(quill_inp.ase.from_atoms, atoms)
    assert [str(line).strip() for line in again.post_commands] == ["B 2 3", "A 1 2 3"]


@pytest.mark.parametrize(
    "line",
    [
        "C 5",
        "C 0",
        "B 2 2",
        "B 1 5",
        "A 2 3 2",
        "D 1 2 3 1",
        "S 2 3 1.5 10",
        "POST charges.txt",
        "thanks, and good night",
    ],
)
def test_lines_that_mean_nothing_to_ase_are_named_and_kept(line):
    document = peroxide("B 2 3", line)
    atoms, message = losses(quill_inp.ase.to_atoms, document)
    assert message == f"ASE has no place for: '{line}'"
    assert len(atoms.constraints) == 1
    assert quietly(quill_inp.ase.from_atoms, atoms) == document


def test_constraints_with_the_wrong_number_of_atoms_are_named():
    document = peroxide()
    document.post_commands = [
        quill_inp.PostCommand(quill_inp.PostCommandKind.BOND_CONSTRAINT, [1, 2, 3])
    ]
    atoms, message = losses(quill_inp.ase.to_atoms, document)
    assert message == "ASE has no place for: 'B 1 2 3'"
    assert atoms.constraints == []


@pytest.mark.parametrize(
    ("first", "bonds", "named"),
    [
        ("0 0 -1.16", 2, "'A 1 2 3', 'D 1 2 3 4'"),
        ("0 0 0", 1, "'B 1 2', 'A 1 2 3', 'D 1 2 3 4'"),
        ("0 nan 0", 1, "'B 1 2', 'A 1 2 3', 'D 1 2 3 4'"),
        ("0 0 inf", 1, "'B 1 2', 'A 1 2 3', 'D 1 2 3 4'"),
    ],
)
def test_values_without_a_derivative_are_named(first, bonds, named):
    document = quill_inp.loads(
        f"0 1\nO {first}\nC 0 0 0\nO 0 0 1.16\nHe 1 0 2\n\n"
        "B 1 2\nA 1 2 3\nD 1 2 3 4\nB 2 3\nC 1\n"
    )
    atoms, message = losses(quill_inp.ase.to_atoms, document)
    assert message == f"ASE has no place for: {named}"
    fixed, internal = atoms.constraints
    assert fixed.get_indices().tolist() == [0]
    assert [1.16, [1, 2]] in internal.bonds
    assert len(internal.bonds) == bonds and not internal.angles and not internal.dihedrals


def test_lines_are_kept_without_commands_too():
    document = quill_inp.loads("0 1\nHe 0 0 0\n\nPOST charges.txt\n")
    atoms, _ = losses(quill_inp.ase.to_atoms, document)
    assert quill_inp.ase.from_atoms(atoms) == document


@pytest.mark.parametrize("bend", [0.01, 3.0, 177.0])
def test_angles_near_those_without_a_derivative_are_constraints(bend):
    x, y = math.cos(math.radians(bend)), math.sin(math.radians(bend))
    document = quill_inp.loads(f"0 1\nO {x} {y} 0\nC 0 0 0\nO 1 0 0\n\nB 1 2\nA 1 2 3\n")
    atoms = quietly(quill_inp.ase.to_atoms, document)
    assert atoms.constraints[0].angles[0][0] == pytest.approx(bend)


def test_symbols_that_are_no_element_become_x_and_are_named_once():
    document = quill_inp.parse_string("0 1\nBq 0 0 0\nO 0 0 1\nBq 0 0 2\n").input
    atoms, message = losses(quill_inp.ase.to_atoms, document)
    assert atoms.get_chemical_symbols() == ["X", "O", "X"]
    assert message == "ASE has no place for: the symbol 'Bq'"


def test_a_document_comes_back_with_commands_lines_and_new_coordinates():
    document = peroxide("C 1", "B 2 3", "S 1 2 3 4 180 12", "A 1 2 3")
    atoms, _ = losses(quill_inp.ase.to_atoms, document)
    moved = atoms.copy()
    moved.positions += [0.0, 0.0, 0.25]
    again = quietly(quill_inp.ase.from_atoms, moved)
    assert numpy.array_equal(again.geometry.positions, document.geometry.positions + [0, 0, 0.25])
    again.geometry = document.geometry
    assert again == document


def test_structures_can_be_copied_pickled_and_written_with_what_is_kept(tmp_path):
    document = peroxide("C 1")
    atoms = quill_inp.ase.to_atoms(document)
    ase.io.write(tmp_path / "atoms.traj", atoms)
    for other in (
        copy.deepcopy(atoms),
        pickle.loads(pickle.dumps(atoms)),
        ase.io.read(tmp_path / "atoms.traj"),
    ):
        assert quill_inp.ase.from_atoms(other) == document


def test_angles_come_after_other_lines_so_that_they_are_not_read_as_atoms():
    atoms = quill_inp.ase.to_atoms(peroxide("B 2 3", "A 1 2 3", "D 1 2 3 4", "C 1"))
    text = str(quill_inp.ase.from_atoms(atoms))
    assert text == str(peroxide("C 1", "B 2 3", "D 1 2 3 4", "A 1 2 3"))
    assert str(quill_inp.parse_string(text).input) == text
