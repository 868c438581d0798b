import os
from types import TracebackType

from typing_extensions import Self

from quill_inp._document import QuillInput
from quill_inp._edit import TextEdit

_Path = str | bytes | os.PathLike[str] | os.PathLike[bytes]

class FileWarning(UserWarning): ...

class FileEdit(TextEdit[bytes]):
    def __init__(
        self,
        path: _Path,
        *,
        backup: str | None = ...,
        break_hard_links: bool = ...,
        lock_timeout: float = ...,
        max_change: float = ...,
        allow_loss: bool = ...,
    ) -> None: ...
    def __enter__(self) -> Self: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...

def edit_file(
    path: _Path,
    *,
    backup: str | None = ...,
    break_hard_links: bool = ...,
    lock_timeout: float = ...,
    max_change: float = ...,
    allow_loss: bool = ...,
) -> FileEdit: ...
def write_file(
    path: _Path,
    document: QuillInput,
    *,
    replace: bool = ...,
    max_change: float = ...,
    allow_loss: bool = ...,
) -> bool: ...
