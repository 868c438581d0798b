import os
from collections.abc import Iterable
from typing import overload

from ase import Atoms  # type: ignore[import]

from quill_inp._document import QuillInput
from quill_inp._neighbours import NotCarriedWarning as NotCarriedWarning

__all__ = [
    "NotCarriedWarning",
    "from_atoms",
    "read_quill_inp",
    "register_format",
    "to_atoms",
    "write_quill_inp",
]

@overload
def to_atoms(
    document: QuillInput, base: str | os.PathLike[str] | None = ..., index: int | None = ...
) -> Atoms: ...
@overload
def to_atoms(
    document: QuillInput, base: str | os.PathLike[str] | None, index: slice
) -> list[Atoms]: ...
@overload
def to_atoms(
    document: QuillInput, base: str | os.PathLike[str] | None = ..., *, index: slice
) -> list[Atoms]: ...
@overload
def to_atoms(
    document: QuillInput, base: str | os.PathLike[str] | None = ..., index: str = ...
) -> Atoms | list[Atoms]: ...
def from_atoms(
    atoms: Atoms, charge: int | None = ..., multiplicity: int | None = ...
) -> QuillInput: ...
def register_format() -> None: ...
def read_quill_inp(
    filename: str | os.PathLike[str], index: int | slice | str = ...
) -> Atoms | list[Atoms]: ...
def write_quill_inp(
    filename: str | os.PathLike[str],
    images: Iterable[Atoms],
    charge: int | None = ...,
    multiplicity: int | None = ...,
) -> None: ...
