"""Structures of inputs for pymatgen, and back.

pymatgen is imported when a function is called. Coordinates are taken to be in angstroms.
"""

from quill_inp._kinds import GeometryKind
from quill_inp._neighbours import (
    NotCarriedWarning,
    document_of,
    warn_of_losses,
    whole_number,
)

__all__ = ["NotCarriedWarning", "from_molecule", "to_molecule"]


def to_molecule(document):
    """Returns the inline atoms of a document as a `pymatgen.core.Molecule` with the charge and the spin
    multiplicity of the document. If it has no line for these, pymatgen chooses: no charge, and the
    lowest multiplicity.

    A NotCarriedWarning names commands and post-processing lines, for which a Molecule has no place.
    Raises ValueError for atoms that are no element, and when there are no inline atoms.
    """
    from pymatgen.core import Element, Molecule

    geometry = document.geometry
    _check_atoms(geometry)
    said = geometry.has_charge_and_multiplicity
    molecule = Molecule(
        [Element.from_Z(int(number)) for number in geometry.numbers],
        geometry.positions,
        charge=geometry.charge if said else 0,
        spin_multiplicity=geometry.multiplicity if said else None,
        charge_spin_check=False,  # what the author wrote, possible or not
    )
    lines = [*document.commands, *document.post_commands]
    warn_of_losses("A Molecule", [f"'{str(line).strip()}'" for line in lines])
    return molecule


def from_molecule(molecule):
    """Returns a document with the atoms of a `pymatgen.core.Molecule`, its charge and its spin
    multiplicity.

    A NotCarriedWarning names the site properties. Raises ValueError for a charge that is not whole and
    for sites that more than one element shares.
    """
    if not molecule.is_ordered:
        raise ValueError("an input has one element on each site; the molecule is disordered")
    document = document_of(
        [site.specie.symbol for site in molecule],
        molecule.cart_coords,
        whole_number("charge", molecule.charge),
        whole_number("multiplicity", molecule.spin_multiplicity),
    )
    warn_of_losses(
        "An input", [f"the site property {name!r}" for name in molecule.site_properties]
    )
    return document


def _check_atoms(geometry):
    if geometry.kind is not GeometryKind.ATOMS:
        raise ValueError(
            "the document has no inline atoms; quill_inp.ase.to_atoms() reads referenced files"
        )
    for number, (atom, element) in enumerate(zip(geometry.atoms, geometry.numbers), start=1):
        if element == 0:
            raise ValueError(f"atom {number}, {atom.symbol!r}, is not an element")
