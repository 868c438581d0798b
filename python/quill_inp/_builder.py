"""Building a new input in one chain of calls."""

import os

from quill_inp import _core
from quill_inp._atom import AtomRecord
from quill_inp._command import HeaderCommand
from quill_inp._document import QuillInput
from quill_inp._operations import set_geometry, take_parameters
from quill_inp._parts import part_of
from quill_inp._post_command import PostCommand


class InputBuilder:
    """Owns a document, empty at first, and builds it up.

        text = (
            InputBuilder()
            .set_task("opt", [CommandParameter("maxiter", "50")])
            .set_model("m1")
            .set_xyz_file("water.xyz")
            .to_string()
        )

    Every operation does what the operation of InputEditor with the same name does, and returns the
    builder. Each one either succeeds or leaves the document as it was; for that, most copy the
    document: to add thousands of atoms, use set_geometry() once.
    """

    __module__ = "quill_inp"
    __slots__ = ("_builder",)

    def __init__(self):
        self._builder = _core.new_builder()

    def document(self):
        """Returns a copy of the document."""
        return QuillInput._of(self._builder.document())

    def to_string(self):
        """Returns the document's canonical text."""
        return self._builder.document().text()

    def write_file(self, path):
        """Writes the canonical text into a file, as QuillInput.write_file()."""
        self._builder.document().write_file(os.fsencode(path))

    def set_task_parameter(self, command, key, value):
        """Sets one parameter of the first command named `command`, and makes that a parameter list."""
        self._builder.set_task_parameter(command, key, value)
        return self

    def set_flag(self, name):
        """Makes the first command named `name` a flag without value and parameters: `#name`."""
        self._builder.set_flag(name)
        return self

    def set_assignment(self, name, value):
        """Makes the first command named `name` an assignment of `value`, without parameters."""
        self._builder.set_assignment(name, value)
        return self

    def set_model(self, value):
        """Makes the first command named "model" the line `#model = value`."""
        self._builder.set_model(value)
        return self

    def set_device(self, value):
        """Makes the first command named "device" the line `#device = value`."""
        self._builder.set_device(value)
        return self

    def set_task(self, name, parameters=()):
        """Gives the first command named `name` exactly these parameters and no value; without any, the
        command becomes a flag.
        """
        self._builder.set_task(name, take_parameters(parameters))
        return self

    def add_command(self, command):
        """Appends a copy of a command, even if there are others with its name."""
        self._builder.add_command(part_of(HeaderCommand, command))
        return self

    def set_charge_and_multiplicity(self, charge, multiplicity):
        """Sets both numbers, which are not checked, and adds their line."""
        self._builder.set_charge_and_multiplicity(charge, multiplicity)
        return self

    def clear_charge_and_multiplicity(self):
        """Removes the line of charge and multiplicity, and sets the charge to 0, the multiplicity to 1."""
        self._builder.clear_charge_and_multiplicity()
        return self

    def set_geometry(self, atoms=None, positions=None, *, symbols=None):
        """Replaces the geometry by atoms, in order: `set_geometry(atoms)` by copies of atoms,
        `set_geometry(symbols, positions)` by symbols and an array-like of numbers of shape (N, 3).
        Symbols are not normalised. Charge, multiplicity and post-processing lines stay. Raises
        ValueError with shape and dtype for an array that does not fit.
        """
        set_geometry(
            self._builder.set_atoms, self._builder.set_positions, atoms, positions, symbols
        )
        return self

    def set_xyz_files(self, files):
        """Replaces the geometry by references to XYZ files, one line `XYZ path` each."""
        self._builder.set_xyz_files([os.fsdecode(one) for one in files])
        return self

    def set_xyz_file(self, path):
        """Replaces the geometry by a reference to one XYZ file."""
        self._builder.set_xyz_file(os.fsdecode(path))
        return self

    def set_xyz_trajectory(self, path):
        """Replaces the geometry by a reference to a trajectory, the line `XYZTRAJ path`."""
        self._builder.set_xyz_trajectory(os.fsdecode(path))
        return self

    def add_atom(self, atom):
        """Appends a copy of an atom to the inline atoms. A geometry of another kind is first replaced
        by an empty list of atoms.
        """
        self._builder.add_atom(part_of(AtomRecord, atom))
        return self

    def add_post_command(self, command):
        """Appends a copy of a post-processing line, even if there is an equal one."""
        self._builder.add_post_command(part_of(PostCommand, command))
        return self

    def add_atom_constraint(self, a):
        """Appends the line `C a`, which fixes the position of atom `a`. Here and below, atoms are
        numbered as in the file, and the numbers are not checked.
        """
        self._builder.add_atom_constraint(a)
        return self

    def add_bond_constraint(self, a, b):
        """Appends the line `B a b`, which fixes the distance between atoms `a` and `b`."""
        self._builder.add_bond_constraint(a, b)
        return self

    def add_angle_constraint(self, a, b, c):
        """Appends the line `A a b c`, which fixes the angle at atom `b`."""
        self._builder.add_angle_constraint(a, b, c)
        return self

    def add_dihedral_constraint(self, a, b, c, d):
        """Appends the line `D a b c d`, which fixes the dihedral angle about the bond of `b` and `c`."""
        self._builder.add_dihedral_constraint(a, b, c, d)
        return self

    def add_scan(self, atoms, value, steps):
        """Appends the line `S`, the atoms, `value` and `steps`: two atoms scan a bond, three an angle,
        four a dihedral. The value is written with up to six significant digits.
        """
        self._builder.add_scan(list(atoms), value, steps)
        return self

    def set_post_file(self, path):
        """Appends the line `POST path`; earlier ones stay."""
        self._builder.set_post_file(os.fsdecode(path))
        return self
