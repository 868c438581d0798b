"""Reading inputs."""

import os
import warnings

from quill_inp import _core
from quill_inp._document import QuillInput
from quill_inp._kinds import LineRole


class InputWarning(UserWarning):
    """A problem that the reader found in a text."""

    __module__ = "quill_inp"

    def __init__(self, line, message):
        super().__init__(line, message)

    @property
    def line(self):
        """The number of the line, counted from 1, or None for a problem of no line."""
        return self.args[0]

    @property
    def message(self):
        """What the problem is, without the line."""
        return self.args[1]

    def __eq__(self, other):
        return self.args == other.args if isinstance(other, InputWarning) else NotImplemented

    def __hash__(self):
        return hash(self.args)

    def __str__(self):
        return self.message if self.line is None else f"Line {self.line}: {self.message}"


class Record:
    """A plain value whose members are its slots."""

    __slots__ = ()
    __hash__ = None

    def _members(self):
        return tuple(getattr(self, name) for name in self.__slots__)

    def __eq__(self, other):
        if not isinstance(other, type(self)):
            return NotImplemented
        return self._members() == other._members()

    def __repr__(self):
        return f"{type(self).__name__}({', '.join(repr(one) for one in self._members())})"

    def __reduce__(self):
        return type(self), self._members()


class ParseResult(Record):
    """The result of reading.

    input: the document, which is empty when `ok` is False.
    ok: False only when a file could not be opened. Warnings leave it True.
    error: which file could not be opened, or "".
    warnings: an InputWarning for each problem, in the order of the lines.
    """

    __module__ = "quill_inp"
    __slots__ = ("input", "ok", "error", "warnings")

    def __init__(self, input, ok=False, error="", warnings=()):
        self.input = input
        self.ok = ok
        self.error = error
        self.warnings = list(warnings)


class LineRecord(Record):
    """One line of a text. Its content is `length` bytes of the text, in UTF-8, from `offset` on, and
    its line end the `terminator_length` bytes after that.

    role: what the reader made of the line, a LineRole.
    index: the position in the list that the role names, counted from 0, or None.
    """

    __module__ = "quill_inp"
    __slots__ = ("role", "index", "offset", "length", "terminator_length")

    def __init__(self, role=LineRole.BLANK, index=None, offset=0, length=0, terminator_length=0):
        self.role = role
        self.index = index
        self.offset = offset
        self.length = length
        self.terminator_length = terminator_length


class ParsedLines(Record):
    """The result of reading a text, what parse_string() returns, and a LineRecord for each line."""

    __module__ = "quill_inp"
    __slots__ = ("result", "lines")

    def __init__(self, result, lines=()):
        self.result = result
        self.lines = list(lines)


def as_source(text):
    """Returns a text as str or bytes, which C++ reads in place."""
    return bytes(text) if isinstance(text, (bytearray, memoryview)) else text


def _result(document, ok, error, problems):
    return ParseResult(
        QuillInput._of(document), ok, error, [InputWarning(*problem) for problem in problems]
    )


def parse_string(text):
    """Reads a whole input, `str` or bytes. `ok` is always True, and nothing is raised for any
    content.
    """
    return _result(*_core.parse_string(as_source(text)))


def parse_file(path):
    """Reads the file at `path`. When it cannot be opened or read, `ok` is False and `error` says
    which file it was; see read() for a function that raises.
    """
    return _result(*_core.parse_file(os.fsencode(path)))


def parse_lines(text):
    """Reads a whole input as parse_string() does and keeps a record of every line."""
    result, records = _core.parse_lines(as_source(text))
    return ParsedLines(_result(*result), _records(records))


def lines(text):
    """Returns a LineRecord for each line of a text: what the reader made of it."""
    return _records(_core.parse_lines(as_source(text))[1])


def _records(tuples):
    return [LineRecord(LineRole(role), *others) for role, *others in tuples]


def read(path):
    """Returns the document in the file at `path`. Raises the OSError that `open` raises:
    FileNotFoundError, IsADirectoryError, PermissionError. Problems are issued as warnings, each an
    InputWarning.
    """
    with open(path, "rb") as file:
        return _document(file.read())


def loads(text):
    """Returns the document that a text says, `str` or bytes. Problems are issued as warnings, each an
    InputWarning.
    """
    return _document(text)


def _document(text):
    result = parse_string(text)
    for warning in result.warnings:
        warnings.warn(warning, stacklevel=3)
    return result.input
