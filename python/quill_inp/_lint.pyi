from collections.abc import Iterable

from quill_inp._kinds import Severity
from quill_inp._reader import Record

class Finding(Record):
    code: str
    severity: Severity
    line: int
    column: int
    message: str
    advice: str
    def __init__(
        self,
        code: str,
        severity: Severity,
        line: int,
        column: int,
        message: str,
        advice: str = ...,
    ) -> None: ...

def lint(
    text: str | bytes | bytearray | memoryview,
    *,
    select: Iterable[str] = ...,
    ignore: Iterable[str] = ...,
    known_commands: Iterable[str] = ...,
) -> list[Finding]: ...
