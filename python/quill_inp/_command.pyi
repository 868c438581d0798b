from collections.abc import Iterable

from quill_inp._kinds import HeaderCommandKind
from quill_inp._parts import Part, PartList

class CommandParameter(Part):
    def __init__(self, name: str = ..., value: str | None = ...) -> None: ...
    name: str
    value: str | None
    def __reduce__(self) -> tuple[type[CommandParameter], tuple[str, str | None]]: ...

class HeaderCommand(Part):
    def __init__(
        self,
        name: str = ...,
        kind: HeaderCommandKind = ...,
        value: str | None = ...,
        parameters: Iterable[CommandParameter] = ...,
    ) -> None: ...
    name: str
    kind: HeaderCommandKind
    value: str | None
    @property
    def parameters(self) -> PartList[CommandParameter]: ...
    @parameters.setter
    def parameters(self, values: Iterable[CommandParameter]) -> None: ...
    def __reduce__(
        self,
    ) -> tuple[
        type[HeaderCommand], tuple[str, HeaderCommandKind, str | None, list[CommandParameter]]
    ]: ...

def find_parameter_index(command: HeaderCommand, name: str) -> int | None: ...
