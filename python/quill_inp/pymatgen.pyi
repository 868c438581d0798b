from pymatgen.core import Molecule  # type: ignore[import]

from quill_inp._document import QuillInput
from quill_inp._neighbours import NotCarriedWarning as NotCarriedWarning

__all__ = ["NotCarriedWarning", "from_molecule", "to_molecule"]

def to_molecule(document: QuillInput) -> Molecule: ...
def from_molecule(molecule: Molecule) -> QuillInput: ...
