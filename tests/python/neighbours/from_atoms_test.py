"""Structures of ASE as documents."""

import numpy
import pytest
from ase.constraints import FixAtoms, FixBondLength, FixBondLengths, FixedPlane, FixInternals
from structures import losses, peroxide, quietly, water

import quill_inp.ase


def test_an_ase_structure_becomes_inline_atoms():
    document = quietly(quill_inp.ase.from_atoms, water(), charge=0, multiplicity=1)
    assert str(document) == (
        "0 1\n"
        "O        0.000000      0.000000      0.100000\n"
        "H        0.000000      0.700000     -0.400000\n"
        "H        0.000000     -0.700000     -0.400000\n"
    )
    assert not quill_inp.ase.from_atoms(water()).geometry.has_charge_and_multiplicity


def test_arguments_come_before_what_the_structure_says():
    atoms = water(info={"charge": 1.0, "multiplicity": numpy.int64(2)})
    document = quill_inp.ase.from_atoms(atoms)
    assert (document.geometry.charge, document.geometry.multiplicity) == (1, 2)
    document = quill_inp.ase.from_atoms(atoms, charge=0, multiplicity=3)
    assert (document.geometry.charge, document.geometry.multiplicity) == (0, 3)


@pytest.mark.parametrize(
    ("known", "message"),
    [
        ({"charge": 1}, "the charge is known, but not the multiplicity; pass it as an argument"),
        (
            {"multiplicity": 1},
            "the multiplicity is known, but not the charge; pass it as an argument",
        ),
        ({"charge": 0.5, "multiplicity": 1}, "the charge is 0.5; an input has whole numbers only"),
    ],
)
def test_half_a_line_of_charge_and_multiplicity_is_refused(known, message):
    with pytest.raises(ValueError) as caught:
        quill_inp.ase.from_atoms(water(), **known)
    assert str(caught.value) == message


@pytest.mark.parametrize(
    ("constraint", "lines"),
    [
        (FixAtoms(mask=[False, True, True]), ["C 2", "C 3"]),
        (FixBondLength(0, 2), ["B 1 3"]),
        (FixInternals(bonds=[[None, [1, 0]]]), ["B 2 1"]),
    ],
)
def test_constraints_of_ase_become_lines(constraint, lines):
    document = quietly(quill_inp.ase.from_atoms, water(constraint=constraint))
    assert [str(line).strip() for line in document.post_commands] == lines


@pytest.mark.parametrize(
    ("change", "named"),
    [
        (lambda atoms: atoms.set_cell([9, 9, 9]), "the cell"),
        (lambda atoms: atoms.set_pbc(True), "the cell"),
        (lambda atoms: atoms.set_tags([0, 1, 0]), "the array 'tags'"),
        (
            lambda atoms: atoms.set_array("labels", numpy.array(["a", "b", "c"])),
            "the array 'labels'",
        ),
        (lambda atoms: atoms.set_constraint(FixedPlane(0, [0, 0, 1])), "FixedPlane"),
        (
            lambda atoms: atoms.set_constraint(
                FixInternals(
                    bondcombos=[[0.0, [[0, 1, 1.0]]]],
                    anglecombos=[[0.0, [[1, 0, 2, 1.0]]]],
                    dihedralcombos=[[0.0, [[0, 1, 2, 0, 1.0]]]],
                )
            ),
            "FixInternals.bondcombos, FixInternals.anglecombos, FixInternals.dihedralcombos",
        ),
        (
            lambda atoms: atoms.set_constraint(FixInternals(bonds=[[0.8603, [0, 1]]])),
            "the value 0.8603 of 'B 1 2', which is 0.860233 in the structure",
        ),
        (
            lambda atoms: atoms.set_constraint(FixBondLengths([[0, 2]], bondlengths=[0.9])),
            "the value 0.9 of 'B 1 3', which is 0.860233 in the structure",
        ),
        (
            lambda atoms: atoms.set_constraint(FixInternals(angles_deg=[[90.0, [1, 0, 2]]])),
            "the value 90 of 'A 2 1 3', which is 108.925 in the structure",
        ),
    ],
)
def test_what_an_input_has_no_place_for_is_named(change, named):
    atoms = water()
    change(atoms)
    _, message = losses(quill_inp.ase.from_atoms, atoms)
    assert message == f"An input has no place for: {named}"


@pytest.mark.parametrize(("turns", "warned"), [(360.0, False), (-360.0, False), (0.02, True)])
def test_dihedrals_are_compared_on_the_circle(turns, warned):
    atoms = quill_inp.ase.to_atoms(peroxide("D 1 2 3 4"))
    atoms.constraints[0].dihedrals[0][0] += turns
    if warned:
        assert "of 'D 1 2 3 4', which is" in losses(quill_inp.ase.from_atoms, atoms)[1]
    else:
        quietly(quill_inp.ase.from_atoms, atoms)


def test_arrays_of_zeros_and_other_information_are_not_named():
    atoms = water(info={"title": "water"}, momenta=numpy.zeros((3, 3)))
    quietly(quill_inp.ase.from_atoms, atoms)
