"""Changing the text of an input where it has to change, and nowhere else."""

from quill_inp import _core
from quill_inp._document import MAX_CHANGE, QuillInput
from quill_inp._editor import Operations
from quill_inp._reader import as_source


class TextEdit(Operations):
    """A text under edit, made by edit(). Its operations are those of InputEditor."""

    __module__ = "quill_inp"
    __slots__ = ("_is_text", "_max_change", "_allow_loss")

    def __init__(self, text, *, max_change=MAX_CHANGE, allow_loss=False):
        self._part = _core.new_text_edit(as_source(text))
        self._is_text = isinstance(text, str)
        self._max_change = max_change
        self._allow_loss = allow_loss

    def document(self):
        """Returns a copy of the document as it is now."""
        return QuillInput._of(self._part.copy_of_document())

    @property
    def text(self):
        """The new text, `str` or bytes as the old one: only lines that have to change are changed,
        all others are the same byte for byte. Raises LossError if it does not say what the document
        says, or loses what a changed line said besides its command.
        """
        text = self._part.new_text(self._max_change, self._allow_loss)
        return text if self._is_text else text.encode("utf-8", "surrogateescape")

    def __enter__(self):
        return self

    def __exit__(self, kind, error, traceback):
        if kind is None:
            self.text


def edit(text, *, max_change=MAX_CHANGE, allow_loss=False):
    """Begins to edit a text, `str` or bytes, and returns a TextEdit.

        with quill_inp.edit(text) as editor:
            editor.set_parameter("opt", "maxiter", "100")
        new_text = editor.text

    The end of the block raises what `text` raises: LossError, for example for a text that does not
    look like an input, or for a constraint that would be read as an atom.

    max_change: how much a number may change when it is written with six decimals.
    allow_loss: take the best text that can be made, whatever it loses.
    """
    return TextEdit(text, max_change=max_change, allow_loss=allow_loss)
