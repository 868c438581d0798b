"""Reads, edits, builds and writes QUILL inputs.

    import quill_inp

    document = quill_inp.read("water.qin")
    document.upsert_command("opt").kind = quill_inp.HeaderCommandKind.FLAG
    print(document.geometry.positions)   # an N x 3 array of NumPy
    print(document)                      # the canonical text

No text is refused: a line that cannot be understood is kept as text or becomes a warning that names
it. Texts are `str`, decoded from UTF-8 with "surrogateescape" and encoded in the same way, so that
any bytes survive. Distinct documents may be used in distinct threads; reading and writing let other
threads run.

A document, and all that it consists of, is a value: `==` compares contents, `copy`, `deepcopy` and
`pickle` make others of the same contents, `repr()` is an expression that makes one, and `str()` is
the text of a part as it is written. What a list of a document gives is a part of that document: a
change of it changes the document. As soon as entries of that list are removed, replaced or moved
(entries added at the end change nothing), the parts that were taken from it before are values of
their own, with what they held.
"""

from quill_inp import _core
from quill_inp._atom import AtomRecord
from quill_inp._builder import InputBuilder
from quill_inp._command import CommandParameter, HeaderCommand, find_parameter_index
from quill_inp._document import QuillInput, normalize_command_name
from quill_inp._edit import TextEdit, edit
from quill_inp._editor import InputEditor
from quill_inp._files import (
    FileEdit,
    FileWarning,
    edit_file,
    write_file,
)
from quill_inp._geometry import GeometryBlock
from quill_inp._kinds import (
    GeometryKind,
    HeaderCommandKind,
    LineRole,
    PostCommandKind,
    Severity,
)
from quill_inp._lint import Finding, lint
from quill_inp._losses import LossError
from quill_inp._parts import PartList
from quill_inp._post_command import PostCommand
from quill_inp._reader import (
    InputWarning,
    LineRecord,
    ParsedLines,
    ParseResult,
    lines,
    loads,
    parse_file,
    parse_lines,
    parse_string,
    read,
)

__version__ = _core.version

__all__ = [
    "AtomRecord",
    "CommandParameter",
    "FileEdit",
    "FileWarning",
    "Finding",
    "GeometryBlock",
    "GeometryKind",
    "HeaderCommand",
    "HeaderCommandKind",
    "InputBuilder",
    "InputEditor",
    "InputWarning",
    "LineRecord",
    "LineRole",
    "LossError",
    "ParseResult",
    "ParsedLines",
    "PartList",
    "PostCommand",
    "PostCommandKind",
    "QuillInput",
    "Severity",
    "TextEdit",
    "edit",
    "edit_file",
    "find_parameter_index",
    "lines",
    "lint",
    "loads",
    "normalize_command_name",
    "parse_file",
    "parse_lines",
    "parse_string",
    "read",
    "write_file",
]
