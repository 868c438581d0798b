from collections.abc import Iterable
from typing import Any

from ase import Atoms  # type: ignore[import]

from quill_inp._post_command import PostCommand

def constraints_of(
    commands: Iterable[PostCommand], atoms: Atoms
) -> tuple[list[Any], list[PostCommand]]: ...
def commands_of(atoms: Atoms) -> tuple[list[PostCommand], list[str]]: ...
