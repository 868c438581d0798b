from collections.abc import Iterable
from typing import Any

from quill_inp._kinds import PostCommandKind
from quill_inp._parts import Part, PartList

class PostCommand(Part):
    def __init__(
        self,
        kind: PostCommandKind = ...,
        atom_indices: Iterable[int] = ...,
        scan_value: float | None = ...,
        scan_steps: int | None = ...,
        post_file: str = ...,
        raw_text: str = ...,
    ) -> None: ...
    kind: PostCommandKind
    @property
    def atom_indices(self) -> PartList[int]: ...
    @atom_indices.setter
    def atom_indices(self, values: Iterable[int]) -> None: ...
    scan_value: float | None
    scan_steps: int | None
    post_file: str
    raw_text: str
    def __reduce__(self) -> tuple[type[PostCommand], tuple[Any, ...]]: ...
