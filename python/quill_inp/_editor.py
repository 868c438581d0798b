"""Changing an input by named operations."""

import os

from quill_inp import _core
from quill_inp._atom import AtomRecord
from quill_inp._command import HeaderCommand
from quill_inp._document import QuillInput
from quill_inp._operations import set_geometry, take_parameters
from quill_inp._parts import part_of
from quill_inp._post_command import PostCommand


class Operations:
    """Changes a document by named operations.

    Command names are compared without regard to letter case, blanks around them and one leading `#`,
    parameter names without regard to letter case and blanks around them. Arguments are stored exactly
    as passed: nothing is trimmed, unquoted or checked. A missing command or parameter is created, and
    it is not an error when there is nothing to remove. Occurrences count from 0.
    """

    __slots__ = ("_part",)

    def has_command(self, name):
        """Returns whether at least one command has this name."""
        return self._part.has_command(name)

    def has_task_command(self):
        """Returns what QuillInput.has_task_command() returns."""
        return self._part.has_task_command()

    def command_names(self):
        """Returns the stored name of every command, in document order."""
        return self._part.command_names()

    def get_assignment(self, name):
        """Returns the value of the first command named `name` if that is an assignment with a value,
        or None.
        """
        return _core.get_assignment(self._part, name)

    def model(self):
        """Returns get_assignment("model")."""
        return self.get_assignment("model")

    def device(self):
        """Returns get_assignment("device")."""
        return self.get_assignment("device")

    def get_parameter(self, command_name, parameter_name, occurrence=0):
        """Returns the value of the first parameter with this name of command number `occurrence`
        among those named `command_name`, or None when the command, the parameter or its value is
        missing.
        """
        return _core.get_parameter(self._part, command_name, parameter_name, occurrence)

    def remove_command(self, name, occurrence=None):
        """Removes every command named `name`, or only number `occurrence` among them, and returns
        whether there was one.
        """
        return self._part.remove_command(name, occurrence)

    def set_parameter(self, command_name, parameter_name, value, occurrence=0):
        """Sets a parameter of command number `occurrence` among those named `command_name`, and makes
        that command a parameter list. The first parameter with this name gets the value; if there is
        none, one is appended. When there are fewer commands with this name, the parameter is appended
        to the first of them, or to a new one.
        """
        _core.set_parameter(self._part, command_name, parameter_name, value, occurrence)

    def remove_parameter(self, command_name, parameter_name, occurrence=0):
        """Removes the first parameter with this name of command number `occurrence` among those named
        `command_name`, and returns whether there was one. A parameter list that loses its last
        parameter becomes a flag.
        """
        return _core.remove_parameter(self._part, command_name, parameter_name, occurrence)

    def clear_post_commands(self):
        """Removes every post-processing line."""
        _core.clear_post_commands(self._part)

    def set_flag(self, name):
        """Makes the first command named `name` a flag without value and parameters: `#name`."""
        _core.set_flag(self._part, name)

    def set_assignment(self, name, value):
        """Makes the first command named `name` an assignment of `value`, without parameters."""
        _core.set_assignment(self._part, name, value)

    def set_model(self, value):
        """Makes the first command named "model" the line `#model = value`."""
        _core.set_model(self._part, value)

    def set_device(self, value):
        """Makes the first command named "device" the line `#device = value`."""
        _core.set_device(self._part, value)

    def set_task(self, name, parameters=()):
        """Gives the first command named `name` exactly these parameters and no value; without any, the
        command becomes a flag.
        """
        _core.set_task(self._part, name, take_parameters(parameters))

    def add_command(self, command):
        """Appends a copy of a command, even if there are others with its name."""
        _core.add_command(self._part, part_of(HeaderCommand, command))

    def set_charge_and_multiplicity(self, charge, multiplicity):
        """Sets both numbers, which are not checked, and adds their line."""
        _core.set_charge_and_multiplicity(self._part, charge, multiplicity)

    def clear_charge_and_multiplicity(self):
        """Removes the line of charge and multiplicity, and sets the charge to 0, the multiplicity to 1."""
        _core.clear_charge_and_multiplicity(self._part)

    def set_geometry(self, atoms=None, positions=None, *, symbols=None):
        """Replaces the geometry by atoms, in order: `set_geometry(atoms)` by copies of atoms,
        `set_geometry(symbols, positions)` by symbols and an array-like of numbers of shape (N, 3).
        Symbols are not normalised. Charge, multiplicity and post-processing lines stay. Raises
        ValueError with shape and dtype for an array that does not fit.
        """
        set_geometry(
            lambda taken: _core.set_atoms(self._part, taken),
            lambda names, rows: _core.set_positions(self._part, names, rows),
            atoms,
            positions,
            symbols,
        )

    def set_xyz_files(self, files):
        """Replaces the geometry by references to XYZ files, one line `XYZ path` each."""
        _core.set_xyz_files(self._part, [os.fsdecode(one) for one in files])

    def set_xyz_file(self, path):
        """Replaces the geometry by a reference to one XYZ file."""
        _core.set_xyz_file(self._part, os.fsdecode(path))

    def set_xyz_trajectory(self, path):
        """Replaces the geometry by a reference to a trajectory, the line `XYZTRAJ path`."""
        _core.set_xyz_trajectory(self._part, os.fsdecode(path))

    def add_atom(self, atom):
        """Appends a copy of an atom to the inline atoms. A geometry of another kind is first replaced
        by an empty list of atoms.
        """
        _core.add_atom(self._part, part_of(AtomRecord, atom))

    def add_post_command(self, command):
        """Appends a copy of a post-processing line, even if there is an equal one."""
        _core.add_post_command(self._part, part_of(PostCommand, command))

    def add_atom_constraint(self, a):
        """Appends the line `C a`, which fixes the position of atom `a`. Here and below, atoms are
        numbered as in the file, and the numbers are not checked.
        """
        _core.add_atom_constraint(self._part, a)

    def add_bond_constraint(self, a, b):
        """Appends the line `B a b`, which fixes the distance between atoms `a` and `b`."""
        _core.add_bond_constraint(self._part, a, b)

    def add_angle_constraint(self, a, b, c):
        """Appends the line `A a b c`, which fixes the angle at atom `b`."""
        _core.add_angle_constraint(self._part, a, b, c)

    def add_dihedral_constraint(self, a, b, c, d):
        """Appends the line `D a b c d`, which fixes the dihedral angle about the bond of `b` and `c`."""
        _core.add_dihedral_constraint(self._part, a, b, c, d)

    def add_scan(self, atoms, value, steps):
        """Appends the line `S`, the atoms, `value` and `steps`: two atoms scan a bond, three an angle,
        four a dihedral. The value is written with up to six significant digits.
        """
        _core.add_scan(self._part, list(atoms), value, steps)

    def set_post_file(self, path):
        """Appends the line `POST path`; earlier ones stay."""
        _core.set_post_file(self._part, os.fsdecode(path))


class InputEditor(Operations):
    """Owns a document and changes it by named operations."""

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(self, input):
        self._part = part_of(QuillInput, input).copy()

    def document(self):
        """Returns the document of the editor itself: what is changed there is changed here."""
        return QuillInput._of(self._part)

    def to_string(self):
        """Returns the document's canonical text."""
        return self._part.text()

    def write_file(self, path):
        """Writes the canonical text into a file, as QuillInput.write_file()."""
        self._part.write_file(os.fsencode(path))
