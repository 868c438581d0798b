from collections.abc import Callable, Iterable
from typing import Any

from numpy.typing import ArrayLike

from quill_inp._atom import AtomRecord
from quill_inp._command import CommandParameter

def take_parameters(parameters: Iterable[CommandParameter]) -> list[Any]: ...
def set_geometry(
    set_atoms: Callable[[list[Any]], None],
    set_positions: Callable[[list[str], Any], None],
    atoms: Iterable[AtomRecord] | Iterable[str] | None,
    positions: ArrayLike | None,
    symbols: Iterable[str] | None,
) -> None: ...
