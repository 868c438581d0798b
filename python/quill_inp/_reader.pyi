import os
from collections.abc import Iterable
from typing import Any, ClassVar

from quill_inp._document import QuillInput
from quill_inp._kinds import LineRole

_Path = str | bytes | os.PathLike[str] | os.PathLike[bytes]
_Source = str | bytes | bytearray | memoryview

class InputWarning(UserWarning):
    def __init__(self, line: int | None, message: str) -> None: ...
    @property
    def line(self) -> int | None: ...
    @property
    def message(self) -> str: ...
    def __eq__(self, other: object) -> bool: ...
    def __hash__(self) -> int: ...

class Record:
    __hash__: ClassVar[None]  # type: ignore[assignment]
    def __eq__(self, other: object) -> bool: ...
    def __reduce__(self) -> tuple[type[Record], tuple[Any, ...]]: ...

class ParseResult(Record):
    input: QuillInput
    ok: bool
    error: str
    warnings: list[InputWarning]
    def __init__(
        self,
        input: QuillInput,
        ok: bool = ...,
        error: str = ...,
        warnings: Iterable[InputWarning] = ...,
    ) -> None: ...

class LineRecord(Record):
    role: LineRole
    index: int | None
    offset: int
    length: int
    terminator_length: int
    def __init__(
        self,
        role: LineRole = ...,
        index: int | None = ...,
        offset: int = ...,
        length: int = ...,
        terminator_length: int = ...,
    ) -> None: ...

class ParsedLines(Record):
    result: ParseResult
    lines: list[LineRecord]
    def __init__(self, result: ParseResult, lines: Iterable[LineRecord] = ...) -> None: ...

def as_source(text: _Source) -> str | bytes: ...
def parse_string(text: _Source) -> ParseResult: ...
def parse_file(path: _Path) -> ParseResult: ...
def parse_lines(text: _Source) -> ParsedLines: ...
def lines(text: _Source) -> list[LineRecord]: ...
def read(path: _Path) -> QuillInput: ...
def loads(text: _Source) -> QuillInput: ...
