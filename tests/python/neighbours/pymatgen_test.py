"""Molecules for pymatgen and from it."""

import numpy
import pytest
from pymatgen.core import Composition, Element, Molecule
from structures import losses, quietly

import quill_inp
import quill_inp.pymatgen

METHYL = "0 2\nC 0 0 0\nH 1.079 0 0\nH -0.5395 0.9344 0\nH -0.5395 -0.9344 0\n"


def test_a_document_becomes_a_molecule_and_comes_back():
    document = quill_inp.loads(METHYL)
    molecule = quietly(quill_inp.pymatgen.to_molecule, document)
    assert [site.specie for site in molecule] == [Element("C"), *[Element("H")] * 3]
    assert numpy.array_equal(molecule.cart_coords, document.geometry.positions)
    assert (molecule.charge, molecule.spin_multiplicity) == (0, 2)
    assert quietly(quill_inp.pymatgen.from_molecule, molecule) == document


@pytest.mark.parametrize("line", ["-2 3", "1 1", "0 4"])
def test_charge_and_multiplicity_are_those_of_the_document_possible_or_not(line):
    document = quill_inp.loads(METHYL.replace("0 2", line, 1))
    molecule = quill_inp.pymatgen.to_molecule(document)
    assert f"{molecule.charge:g} {molecule.spin_multiplicity}" == line
    assert quill_inp.pymatgen.from_molecule(molecule) == document


def test_without_their_line_pymatgen_chooses():
    document = quill_inp.loads(METHYL.replace("0 2\n", "", 1))
    document.geometry.charge, document.geometry.multiplicity = -1, 3  # not written
    molecule = quill_inp.pymatgen.to_molecule(document)
    assert (molecule.charge, molecule.spin_multiplicity) == (0, 2)


def test_what_a_molecule_has_no_place_for_is_named():
    document = quill_inp.loads("#opt(tight)\n#model = m1\n\n" + METHYL + "\nB 1 2\nB 1 2\nthanks\n")
    _, message = losses(quill_inp.pymatgen.to_molecule, document)
    assert message == (
        "A Molecule has no place for: '#opt(tight)', '#model = m1', 'B 1 2', 'thanks'"
    )


def test_what_an_input_has_no_place_for_is_named():
    molecule = Molecule(["He"], [[0, 0, 0]], site_properties={"magmom": [1.0]})
    document, message = losses(quill_inp.pymatgen.from_molecule, molecule)
    assert message == "An input has no place for: the site property 'magmom'"
    assert str(document) == "0 1\nHe       0.000000      0.000000      0.000000\n"


@pytest.mark.parametrize(
    ("text", "message"),
    [
        ("0 1\nO 0 0 0\nBq 0 0 1\n", "atom 2, 'Bq', is not an element"),
        (
            "#sp\n\nXYZ water.xyz\n",
            "the document has no inline atoms; quill_inp.ase.to_atoms() reads referenced files",
        ),
    ],
)
def test_documents_that_are_no_molecule_are_refused(text, message):
    with pytest.raises(ValueError) as caught:
        quill_inp.pymatgen.to_molecule(quill_inp.parse_string(text).input)
    assert str(caught.value) == message


@pytest.mark.parametrize(
    ("molecule", "message"),
    [
        (
            Molecule(["H"], [[0, 0, 0]], charge=0.5, charge_spin_check=False),
            "the charge is 0.5; an input has whole numbers only",
        ),
        (
            Molecule([Composition({"C": 0.5, "N": 0.5})], [[0, 0, 0]], charge_spin_check=False),
            "an input has one element on each site; the molecule is disordered",
        ),
    ],
)
def test_molecules_that_no_input_can_say_are_refused(molecule, message):
    with pytest.raises(ValueError) as caught:
        quill_inp.pymatgen.from_molecule(molecule)
    assert str(caught.value) == message


@pytest.mark.parametrize(
    "name", ["benzene.xyz", "cisplatin.xyz", "pd_dppf.xyz", "taxol.xyz", "uranyl.xyz", "water.xyz"]
)
def test_molecules_of_files_go_there_and_back(name, geometries):
    molecule = Molecule.from_file(geometries / name)
    document = quill_inp.pymatgen.from_molecule(molecule)
    assert document.geometry.symbols == [site.specie.symbol for site in molecule]
    assert numpy.array_equal(document.geometry.positions, molecule.cart_coords)
    assert quill_inp.pymatgen.to_molecule(document) == molecule
