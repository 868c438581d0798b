from types import TracebackType
from typing import Generic, TypeVar

from typing_extensions import Self

from quill_inp._document import QuillInput
from quill_inp._editor import Operations

_AnyText = TypeVar("_AnyText", str, bytes)

class TextEdit(Operations, Generic[_AnyText]):
    def __init__(
        self, text: _AnyText, *, max_change: float = ..., allow_loss: bool = ...
    ) -> None: ...
    def document(self) -> QuillInput: ...
    @property
    def text(self) -> _AnyText: ...
    def __enter__(self) -> Self: ...
    def __exit__(
        self,
        kind: type[BaseException] | None,
        error: BaseException | None,
        traceback: TracebackType | None,
    ) -> None: ...

def edit(
    text: _AnyText, *, max_change: float = ..., allow_loss: bool = ...
) -> TextEdit[_AnyText]: ...
