import os
from collections.abc import Iterable
from typing import Any

import numpy
from numpy.typing import NDArray

from quill_inp._atom import AtomRecord
from quill_inp._kinds import GeometryKind
from quill_inp._parts import Part, PartList

def take_atom(value: AtomRecord) -> Any: ...

class GeometryBlock(Part):
    def __init__(
        self,
        kind: GeometryKind = ...,
        charge: int = ...,
        multiplicity: int = ...,
        has_charge_and_multiplicity: bool = ...,
        atoms: Iterable[AtomRecord] = ...,
        xyz_files: Iterable[str | bytes | os.PathLike[str] | os.PathLike[bytes]] = ...,
    ) -> None: ...
    kind: GeometryKind
    charge: int
    multiplicity: int
    has_charge_and_multiplicity: bool
    @property
    def atoms(self) -> PartList[AtomRecord]: ...
    @atoms.setter
    def atoms(self, values: Iterable[AtomRecord]) -> None: ...
    @property
    def xyz_files(self) -> PartList[str]: ...
    @xyz_files.setter
    def xyz_files(self, values: Iterable[str]) -> None: ...
    @property
    def positions(self) -> NDArray[numpy.float64]: ...
    @property
    def numbers(self) -> NDArray[numpy.int64]: ...
    @property
    def symbols(self) -> list[str]: ...
    def __reduce__(self) -> tuple[type[GeometryBlock], tuple[Any, ...]]: ...
