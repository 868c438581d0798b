from rdkit.Chem import Mol  # type: ignore[import]

from quill_inp._document import QuillInput
from quill_inp._neighbours import NotCarriedWarning as NotCarriedWarning

__all__ = ["NotCarriedWarning", "from_mol"]

def from_mol(mol: Mol, conformer: int = ...) -> QuillInput: ...
