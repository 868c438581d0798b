"""The coordinate section."""

import os

from quill_inp import _core
from quill_inp._atom import AtomRecord
from quill_inp._kinds import GeometryKind, number_of
from quill_inp._parts import Part, kind_member, list_member, member, part_of


def take_atom(value):
    """Returns what C++ holds of an atom."""
    return part_of(AtomRecord, value)


class GeometryBlock(Part):
    """The coordinate section: charge and multiplicity, and the geometry in one of three forms.

    `positions`, `symbols` and `numbers` are those of `atoms`, of which there are none in the two
    other forms. NumPy is imported when an array is asked for.
    """

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(
        self,
        kind=GeometryKind.NONE,
        charge=0,
        multiplicity=1,
        has_charge_and_multiplicity=False,
        atoms=(),
        xyz_files=(),
    ):
        self._part = _core.new_geometry(
            number_of(GeometryKind, kind), charge, multiplicity, bool(has_charge_and_multiplicity)
        )
        self.atoms = atoms
        self.xyz_files = xyz_files

    kind = kind_member(
        GeometryKind,
        number_of,
        "Selects what is written: `atoms`, all entries of `xyz_files` or only the first one.",
    )
    charge = member("charge", "Of the whole molecule, in elementary charges; not checked.")
    multiplicity = member("multiplicity", "Of the spin, 1 for a singlet; not checked.")
    has_charge_and_multiplicity = member(
        "has_charge_and_multiplicity", "Whether the line with both numbers is written."
    )
    atoms = list_member(
        "atoms",
        AtomRecord._of,
        take_atom,
        "The inline atoms. Atom numbers in post-processing lines refer to this order.",
    )
    xyz_files = list_member(
        "xyz_files",
        str,
        os.fsdecode,
        "Paths as they are in the file, blanks and quotes included. The files are never opened.",
    )

    @property
    def positions(self):
        """The coordinates of `atoms` as an array of shape (N, 3) and dtype float64, in the unit of
        the file. It is a copy of its own.
        """
        import numpy

        return numpy.frombuffer(self._part.positions(), numpy.float64).reshape(-1, 3)

    @property
    def numbers(self):
        """The atomic numbers of `atoms` as an array of shape (N,) and dtype int64, 0 for a symbol
        that is not that of an element. It is a copy of its own.
        """
        import numpy

        return numpy.frombuffer(self._part.numbers(), numpy.int64)

    @property
    def symbols(self):
        """The symbols of `atoms` as a list of str, a copy of its own."""
        return self._part.symbols()

    def __repr__(self):
        return (
            f"GeometryBlock({self.kind!r}, {self.charge}, {self.multiplicity}, "
            f"{self.has_charge_and_multiplicity}, {self.atoms!r}, {self.xyz_files!r})"
        )

    def __reduce__(self):
        return type(self), (
            self.kind,
            self.charge,
            self.multiplicity,
            self.has_charge_and_multiplicity,
            list(self.atoms),
            list(self.xyz_files),
        )
