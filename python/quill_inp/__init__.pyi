from quill_inp._atom import AtomRecord as AtomRecord
from quill_inp._builder import InputBuilder as InputBuilder
from quill_inp._command import (
    CommandParameter as CommandParameter,
    HeaderCommand as HeaderCommand,
    find_parameter_index as find_parameter_index,
)
from quill_inp._document import (
    QuillInput as QuillInput,
    normalize_command_name as normalize_command_name,
)
from quill_inp._edit import TextEdit as TextEdit, edit as edit
from quill_inp._editor import InputEditor as InputEditor
from quill_inp._files import (
    FileEdit as FileEdit,
    FileWarning as FileWarning,
    edit_file as edit_file,
    write_file as write_file,
)
from quill_inp._geometry import GeometryBlock as GeometryBlock
from quill_inp._kinds import (
    GeometryKind as GeometryKind,
    HeaderCommandKind as HeaderCommandKind,
    LineRole as LineRole,
    PostCommandKind as PostCommandKind,
    Severity as Severity,
)
from quill_inp._lint import Finding as Finding, lint as lint
from quill_inp._losses import LossError as LossError
from quill_inp._parts import PartList as PartList
from quill_inp._post_command import PostCommand as PostCommand
from quill_inp._reader import (
    InputWarning as InputWarning,
    LineRecord as LineRecord,
    ParsedLines as ParsedLines,
    ParseResult as ParseResult,
    lines as lines,
    loads as loads,
    parse_file as parse_file,
    parse_lines as parse_lines,
    parse_string as parse_string,
    read as read,
)

__version__: str

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
