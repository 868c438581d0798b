"""Inputs from molecules of RDKit."""

import numpy
import pytest
from rdkit import Chem
from rdkit.Chem import AllChem
from structures import losses, quietly

import quill_inp
import quill_inp.rdkit


def embedded(smiles):
    mol = Chem.AddHs(Chem.MolFromSmiles(smiles))
    assert AllChem.EmbedMolecule(mol, randomSeed=7) == 0
    return mol


@pytest.mark.parametrize(
    ("smiles", "charge", "multiplicity", "symbols"),
    [
        ("O", 0, 1, "OHH"),
        ("[NH4+]", 1, 1, "NHHHH"),
        ("[O-]C=O", -1, 1, "OCOH"),
        ("[CH3]", 0, 2, "CHHH"),
        ("[O][O]", 0, 3, "OO"),
        ("[NH3+]CC(=O)[O-]", 0, 1, "NCCOOHHHHH"),
    ],
)
def test_charge_and_multiplicity_come_from_formal_charges_and_radicals(
    smiles, charge, multiplicity, symbols
):
    mol = embedded(smiles)
    document = quietly(quill_inp.rdkit.from_mol, mol)
    geometry = document.geometry
    assert (geometry.charge, geometry.multiplicity) == (charge, multiplicity)
    assert geometry.has_charge_and_multiplicity
    assert "".join(geometry.symbols) == symbols
    assert numpy.array_equal(geometry.positions, mol.GetConformer().GetPositions())
    assert document.commands == [] and document.post_commands == []


def test_a_conformer_is_chosen_by_its_id():
    mol = Chem.AddHs(Chem.MolFromSmiles("CCCC"))
    first, second = AllChem.EmbedMultipleConfs(mol, 2, randomSeed=7)
    for conformer in (first, second):
        positions = quill_inp.rdkit.from_mol(mol, conformer=conformer).geometry.positions
        assert numpy.array_equal(positions, mol.GetConformer(conformer).GetPositions())
    assert quill_inp.rdkit.from_mol(mol) == quill_inp.rdkit.from_mol(mol, first)
    assert quill_inp.rdkit.from_mol(mol) != quill_inp.rdkit.from_mol(mol, second)


def drawing():
    mol = Chem.AddHs(Chem.MolFromSmiles("O"))
    AllChem.Compute2DCoords(mol)
    return mol


def without_hydrogens():
    return Chem.RemoveHs(embedded("CCO"))


@pytest.mark.parametrize(
    ("make", "conformer", "message"),
    [
        (
            lambda: Chem.MolFromSmiles("O"),
            -1,
            "the molecule has no coordinates; AllChem.EmbedMolecule makes some",
        ),
        (lambda: embedded("O"), 3, "the molecule has no conformer 3, but [0]"),
        (drawing, -1, "the conformer is a drawing, with coordinates in two dimensions only"),
        (
            without_hydrogens,
            -1,
            "6 hydrogens of the molecule are not atoms of it; Chem.AddHs makes them atoms",
        ),
        (lambda: embedded("*C"), -1, "atom 1, '*', is not an element"),
    ],
)
def test_molecules_that_are_no_whole_structure_are_refused(make, conformer, message):
    with pytest.raises(ValueError) as caught:
        quill_inp.rdkit.from_mol(make(), conformer)
    assert str(caught.value) == message


def test_a_valence_that_rdkit_does_not_know_is_no_error():
    mol = Chem.MolFromSmiles("F[H]F", sanitize=False)
    mol.AddConformer(Chem.Conformer(3))
    assert quill_inp.rdkit.from_mol(mol).geometry.symbols == ["F", "H", "F"]


def test_isotopes_are_named_once():
    document, message = losses(quill_inp.rdkit.from_mol, embedded("[2H]O[2H]"))
    assert message == "An input has no place for: the isotope 2H"
    assert document.geometry.symbols == ["H", "O", "H"]


@pytest.mark.parametrize("name", ["benzene.xyz", "butane_exponents.xyz", "serine.xyz", "taxol.xyz"])
def test_a_molecule_that_was_never_sanitised_is_left_as_it_is(name, geometries):
    count, _, *lines = (geometries / name).read_text().splitlines()
    rows = [line.split() for line in lines[: int(count)]]
    mol = Chem.RWMol()
    conformer = Chem.Conformer(len(rows))
    for index, (symbol, *position) in enumerate(rows):
        atom = Chem.Atom(symbol)
        atom.SetNoImplicit(True)
        mol.AddAtom(atom)
        conformer.SetAtomPosition(index, [float(one) for one in position])
    mol.AddConformer(conformer)
    document = quill_inp.rdkit.from_mol(mol)
    assert document.geometry.symbols == [row[0] for row in rows]
    positions = [[float(one) for one in row[1:]] for row in rows]
    assert numpy.array_equal(document.geometry.positions, positions)
    assert mol.NeedsUpdatePropertyCache()
