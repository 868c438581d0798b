import enum

class _Kind(enum.Enum): ...

class HeaderCommandKind(_Kind):
    FLAG = 0
    ASSIGNMENT = 1
    PARAMETER_LIST = 2

class GeometryKind(_Kind):
    NONE = 0
    ATOMS = 1
    XYZ_FILE = 2
    XYZ_TRAJECTORY = 3

class PostCommandKind(_Kind):
    ATOM_CONSTRAINT = 0
    BOND_CONSTRAINT = 1
    ANGLE_CONSTRAINT = 2
    DIHEDRAL_CONSTRAINT = 3
    SCAN = 4
    POST_FILE = 5
    RAW = 6

class LineRole(_Kind):
    BLANK = 0
    COMMAND = 1
    CHARGE_AND_MULTIPLICITY = 2
    ATOM = 3
    XYZ_REFERENCE = 4
    TRAJECTORY = 5
    POST_COMMAND = 6
    DROPPED = 7

class Severity(_Kind):
    INFO = 0
    WARNING = 1
    ERROR = 2

def number_of(kind: type[_Kind], value: _Kind) -> int: ...
