"""Inputs from molecules of RDKit. RDKit itself is imported when the function is called."""

from quill_inp._neighbours import NotCarriedWarning, document_of, warn_of_losses

__all__ = ["NotCarriedWarning", "from_mol"]


def from_mol(mol, conformer=-1):
    """Returns a document with the atoms of a conformer of an `rdkit.Chem.Mol`, the sum of its formal
    charges, and the multiplicity of its radical electrons when all their spins are parallel.

    conformer: the id of the conformer, by default the first one.

    A NotCarriedWarning names isotopes. Raises ValueError for a molecule without coordinates in three
    dimensions, without all its hydrogens as atoms (`Chem.AddHs` adds them), or with atoms that are no
    element.
    """
    from rdkit import Chem

    coordinates = _conformer(mol, conformer)
    checked = Chem.Mol(mol)
    checked.UpdatePropertyCache(strict=False)
    atoms = list(checked.GetAtoms())
    _check_atoms(atoms)
    document = document_of(
        [atom.GetSymbol() for atom in atoms],
        coordinates.GetPositions(),
        Chem.GetFormalCharge(checked),
        1 + sum(atom.GetNumRadicalElectrons() for atom in atoms),
    )
    warn_of_losses(
        "An input",
        [f"the isotope {atom.GetIsotope()}{atom.GetSymbol()}" for atom in atoms if atom.GetIsotope()],
    )
    return document


def _conformer(mol, conformer):
    known = [one.GetId() for one in mol.GetConformers()]
    if not known:
        raise ValueError("the molecule has no coordinates; AllChem.EmbedMolecule makes some")
    if conformer != -1 and conformer not in known:
        raise ValueError(f"the molecule has no conformer {conformer}, but {known}")
    found = mol.GetConformer(conformer)
    if not found.Is3D():
        raise ValueError("the conformer is a drawing, with coordinates in two dimensions only")
    return found


def _check_atoms(atoms):
    for number, atom in enumerate(atoms, start=1):
        if atom.GetAtomicNum() == 0:
            raise ValueError(f"atom {number}, {atom.GetSymbol()!r}, is not an element")
    missing = sum(atom.GetTotalNumHs() for atom in atoms)
    if missing:
        raise ValueError(
            f"{missing} hydrogens of the molecule are not atoms of it; Chem.AddHs makes them atoms"
        )
