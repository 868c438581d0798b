"""Files of users, written so that nothing is lost."""

import os
import warnings

from quill_inp import _core
from quill_inp._document import MAX_CHANGE, QuillInput
from quill_inp._edit import TextEdit
from quill_inp._parts import part_of


class FileWarning(UserWarning):
    """Something that a file had before it was replaced could not be kept, such as its owner."""

    __module__ = "quill_inp"


class FileEdit(TextEdit):
    """A file under edit, made by edit_file(). Its operations are those of InputEditor."""

    __module__ = "quill_inp"
    __slots__ = ("_path", "_file", "_backup", "_break_hard_links", "_lock_timeout")

    def __init__(
        self,
        path,
        *,
        backup=None,
        break_hard_links=False,
        lock_timeout=60.0,
        max_change=MAX_CHANGE,
        allow_loss=False,
    ):
        super().__init__(b"", max_change=max_change, allow_loss=allow_loss)
        self._path = os.fsencode(path)
        self._file = None
        self._backup = None if backup is None else _suffix(backup)
        self._break_hard_links = bool(break_hard_links)
        self._lock_timeout = lock_timeout

    def __enter__(self):
        self._file = _core.open_file(self._path, self._lock_timeout)
        self._part = _core.new_text_edit(self._file.text())
        return self

    def __exit__(self, kind, error, traceback):
        try:
            if kind is None:
                lost = self._file.replace(self.text, self._backup, self._break_hard_links)
                _warn(self._path, lost)
        finally:
            self._file.close()


def _suffix(backup):
    """Returns a suffix for the name of a file, of which no other folder can be made."""
    suffix = os.fsencode(backup)
    if not suffix or b"/" in suffix:
        raise ValueError(f"backup is a suffix for the name of the file, such as '.bak', not {backup!r}")
    return suffix


def edit_file(
    path,
    *,
    backup=None,
    break_hard_links=False,
    lock_timeout=60.0,
    max_change=MAX_CHANGE,
    allow_loss=False,
):
    """Edits a file, in a `with` block.

        with quill_inp.edit_file("water.qin") as editor:
            editor.set_parameter("opt", "maxiter", "100")

    At the end of the block, the file gets a text in which only those lines are changed that have to
    change. At every moment, even if the program is killed, the file holds either the whole old text
    or the whole new one. Nothing is written if the block raises, or if nothing changes. Raises
    LossError as edit() does, and OSError when the file cannot be read or replaced, or when another
    program changed it meanwhile; the file is then as it was.

    backup: a suffix for the name of a copy of the old text, such as ".bak".
    break_hard_links: also replace a file that has several names; its other names keep the old text.
    lock_timeout: how many seconds to wait for other programs that replace the file in this way.
    max_change, allow_loss: as for edit().
    """
    return FileEdit(
        path,
        backup=backup,
        break_hard_links=break_hard_links,
        lock_timeout=lock_timeout,
        max_change=max_change,
        allow_loss=allow_loss,
    )


def write_file(path, document, *, replace=False, max_change=MAX_CHANGE, allow_loss=False):
    """Writes a document into a new file: its canonical text, with quotes around values that need
    them. At every moment, there is either no file or the whole text. Returns whether the file was
    written: a file that holds the text already is left alone.

    Raises FileExistsError for a file with another text, unless `replace` says that it is to be
    replaced, which is done as by edit_file(); LossError if no text says what the document says, and
    OSError when the file cannot be written.

    max_change: how much a number may change when it is written with six decimals.
    allow_loss: write the text, whatever it loses.
    """
    text = _core.proved_text(part_of(QuillInput, document), max_change, bool(allow_loss))
    path = os.fsencode(path)
    is_written, lost = _core.write_file(
        path, text.encode("utf-8", "surrogateescape"), bool(replace)
    )
    _warn(path, lost)
    return is_written


def _warn(path, lost):
    for words in lost:
        warnings.warn(FileWarning(f"{os.fsdecode(path)}: {words}"), stacklevel=3)
