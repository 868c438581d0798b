"""Structures of inputs for ASE, and back.

    import quill_inp
    import quill_inp.ase

    document = quill_inp.read("water.qin")
    atoms = quill_inp.ase.to_atoms(document)
    atoms.rattle(0.01, seed=7)
    print(quill_inp.ase.from_atoms(atoms))   # the same commands, other coordinates

ASE is imported when a function is called. Coordinates are taken to be in angstroms.
"""

import os
import sys

from quill_inp._ase_constraints import commands_of, constraints_of
from quill_inp._document import QuillInput
from quill_inp._editor import InputEditor
from quill_inp._files import write_file
from quill_inp._kinds import GeometryKind, PostCommandKind
from quill_inp._neighbours import NotCarriedWarning, warn_of_losses, whole_number
from quill_inp._reader import read

__all__ = [
    "NotCarriedWarning",
    "from_atoms",
    "read_quill_inp",
    "register_format",
    "to_atoms",
    "write_quill_inp",
]

_FORMAT = "quill-inp"
_KEPT = "quill_inp"


def to_atoms(document, base=None, index=None):
    """Returns the structure of a document as an `ase.Atoms`. Referenced XYZ files and trajectories are
    read by ASE, each with all its frames.

    base: the folder to which paths of references are relative, by default the current one.
    index: which of several structures, an int; a slice, or its text such as ":", gives a list. Without
    it there has to be exactly one.

    Charge and multiplicity are in `atoms.info` as "charge" and "multiplicity", if the document has
    their line. A constraint of an atom becomes a part of a FixAtoms; those of bonds, angles and
    dihedrals become a FixInternals with the values of the structure. `atoms.info["quill_inp"]` keeps
    the commands and all other post-processing lines, in the form of QuillInput.to_dict(), for
    from_atoms(). A NotCarriedWarning names the lines that mean nothing to ASE, and the symbols that
    are no element, which become "X".

    Raises ValueError when there is not one structure and no index, and when ASE cannot read a file;
    OSError when a file cannot be opened.
    """
    losses = []
    chosen = _chosen(_structures(document.geometry, base, losses), index)
    for atoms in chosen if isinstance(chosen, list) else [chosen]:
        _complete(atoms, document, losses)
    warn_of_losses("ASE", losses)
    return chosen


def from_atoms(atoms, charge=None, multiplicity=None):
    """Returns a document with the structure of an `ase.Atoms` as inline atoms.

    charge, multiplicity: by default what `atoms.info` says; without both, the document has no line
    for them. One without the other raises ValueError.

    Atoms of FixAtoms and the bonds, angles and dihedrals of FixInternals and FixBondLengths become
    constraints. Commands and other lines that to_atoms() has kept in `atoms.info` come back. A
    NotCarriedWarning names what an input has no place for: the cell, momenta and other arrays, other
    constraints, and values that are fixed although the structure does not have them. Other entries
    of `atoms.info` and the calculator are not part of an input.
    """
    kept = atoms.info.get(_KEPT)
    editor = InputEditor(QuillInput() if kept is None else QuillInput.from_dict(kept))
    editor.set_geometry(atoms.get_chemical_symbols(), atoms.get_positions())
    _set_charge_and_multiplicity(
        editor,
        atoms.info.get("charge") if charge is None else charge,
        atoms.info.get("multiplicity") if multiplicity is None else multiplicity,
    )
    lines, losses = commands_of(atoms)
    _put_lines(editor.document().post_commands, lines)
    warn_of_losses("An input", [*_other_data(atoms), *losses])
    return editor.document()


def register_format():
    """Lets `ase.io.read` and `ase.io.write` know files that end in `.qin`, by the name "quill-inp".
    A second call does nothing. ASE 3.23 and later know the format of an installed package without it.
    """
    from ase.io import formats

    if _FORMAT in formats.ioformats:
        return
    # Without entry points, ASE takes formats from its own package only.
    sys.modules["ase.io.quill_inp"] = sys.modules[__name__]
    formats.define_io_format(_FORMAT, "QUILL input", "+S", module="quill_inp", ext="qin")


def read_quill_inp(filename, index=-1):
    """Reads structures of the input in a file for `ase.io.read`: to_atoms() with the folder of the file
    as `base`.
    """
    return to_atoms(read(filename), os.path.dirname(filename), index)


def write_quill_inp(filename, images, charge=None, multiplicity=None):
    """Writes the input that from_atoms() makes for `ase.io.write`, as write_file() does; a file that is
    there is replaced. Raises ValueError unless there is one structure, and LossError when the text
    would not say what the document says.
    """
    images = list(images)
    if len(images) != 1:
        raise ValueError(f"an input has the atoms of one structure, not of {len(images)}")
    write_file(filename, from_atoms(images[0], charge, multiplicity), replace=True)


def __getattr__(name):
    if name != "ase_format":
        raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
    from ase.utils.plugins import ExternalIOFormat  # since ASE 3.23

    return ExternalIOFormat(desc="QUILL input", code="+S", module=__name__, ext="qin")


def _structures(geometry, base, losses):
    if geometry.kind is GeometryKind.ATOMS:
        return [_inline_atoms(geometry, losses)]
    files = list(geometry.xyz_files)
    if geometry.kind is GeometryKind.XYZ_TRAJECTORY:
        files = files[:1]
    if geometry.kind is GeometryKind.NONE:
        files = []
    folder = "" if base is None else os.fspath(base)
    return [atoms for file in files for atoms in _frames(os.path.join(folder, file))]


def _inline_atoms(geometry, losses):
    from ase import Atoms

    numbers = geometry.numbers
    losses.extend(
        f"the symbol {atom.symbol!r}"
        for atom, number in zip(geometry.atoms, numbers)
        if number == 0
    )
    return Atoms(numbers=numbers, positions=geometry.positions)


def _frames(path):
    import ase.io
    from ase.io.extxyz import XYZError

    with open(path, encoding="utf-8", errors="surrogateescape") as file:
        try:
            return ase.io.read(file, ":", format="extxyz")
        except (LookupError, ValueError, XYZError) as error:
            raise ValueError(f"ASE cannot read {path!r} as XYZ: {error!r}") from error


def _chosen(images, index):
    from ase.io.formats import string2index

    if index is None:
        if len(images) != 1:
            raise ValueError(
                f"the document has {len(images)} structures; choose by an index, such as 0 or ':'"
            )
        return images[0]
    return images[string2index(index) if isinstance(index, str) else index]


def _complete(atoms, document, losses):
    """Adds to a structure what the document says of it."""
    geometry = document.geometry
    if geometry.has_charge_and_multiplicity:
        atoms.info["charge"] = geometry.charge
        atoms.info["multiplicity"] = geometry.multiplicity
    constraints, others = constraints_of(document.post_commands, atoms)
    atoms.set_constraint([*atoms.constraints, *constraints])
    losses.extend(f"'{str(command).strip()}'" for command in others)
    if document.commands or others:
        atoms.info[_KEPT] = QuillInput(document.commands, post_commands=others).to_dict()


def _set_charge_and_multiplicity(editor, charge, multiplicity):
    if charge is None and multiplicity is None:
        return
    if charge is None or multiplicity is None:
        known, missing = ("multiplicity", "charge") if charge is None else ("charge", "multiplicity")
        raise ValueError(f"the {known} is known, but not the {missing}; pass it as an argument")
    editor.set_charge_and_multiplicity(
        whole_number("charge", charge), whole_number("multiplicity", multiplicity)
    )


def _put_lines(post_commands, lines):
    """Adds constraints before the lines that were kept, but those of angles at the end: right after
    an atom, the line of an angle would be read as one more atom.
    """
    angles = [line for line in lines if line.kind is PostCommandKind.ANGLE_CONSTRAINT]
    others = [line for line in lines if line.kind is not PostCommandKind.ANGLE_CONSTRAINT]
    post_commands[:] = [*others, *post_commands, *angles]


def _other_data(atoms):
    """Names what the structure has besides atoms, constraints and `info`."""
    if atoms.cell.any() or atoms.pbc.any():
        yield "the cell"
    for name, array in atoms.arrays.items():
        if name not in ("numbers", "positions") and (array.dtype.kind in "OSU" or array.any()):
            yield f"the array {name!r}"
