"""The enumerations. Their values never change."""

import enum


class _Kind(enum.Enum):
    def __repr__(self):
        return f"{type(self).__name__}.{self.name}"


class HeaderCommandKind(_Kind):
    """The form of a header line."""

    __module__ = "quill_inp"

    FLAG = 0  # `#name`
    ASSIGNMENT = 1  # `#name = value`
    PARAMETER_LIST = 2  # `#name(parameter, parameter=value)`


class GeometryKind(_Kind):
    """The form of the coordinate section."""

    __module__ = "quill_inp"

    NONE = 0  # no coordinates
    ATOMS = 1  # one line per atom: a symbol and three numbers
    XYZ_FILE = 2  # one line `XYZ path` per file
    XYZ_TRAJECTORY = 3  # one line `XYZTRAJ path`


class PostCommandKind(_Kind):
    """The form of a post-processing line."""

    __module__ = "quill_inp"

    ATOM_CONSTRAINT = 0  # `C i`
    BOND_CONSTRAINT = 1  # `B i j`
    ANGLE_CONSTRAINT = 2  # `A i j k`
    DIHEDRAL_CONSTRAINT = 3  # `D i j k l`
    SCAN = 4  # `S`, two to four atom numbers, a value and a number of steps
    POST_FILE = 5  # `POST path`
    RAW = 6  # any other text


class LineRole(_Kind):
    """What a line is to the reader."""

    __module__ = "quill_inp"

    BLANK = 0  # means nothing anywhere
    COMMAND = 1  # a header line, `commands[index]`
    CHARGE_AND_MULTIPLICITY = 2  # the two numbers of `geometry`
    ATOM = 3  # `geometry.atoms[index]`
    XYZ_REFERENCE = 4  # `geometry.xyz_files[index]`; no index when it has no path
    TRAJECTORY = 5  # `geometry.xyz_files[0]`; no index when it has no path
    POST_COMMAND = 6  # `post_commands[index]`
    DROPPED = 7  # a malformed post-processing line, of which only a warning is left


class Severity(_Kind):
    """How bad a finding is."""

    __module__ = "quill_inp"

    INFO = 0  # worth a look
    WARNING = 1  # the reader probably made something else of the text than its author meant
    ERROR = 2  # it did


def number_of(kind, value):
    """Returns the number of a value of an enumeration."""
    if not isinstance(value, kind):
        raise TypeError(f"expected {kind.__name__}, not {type(value).__name__}")
    return value.value
