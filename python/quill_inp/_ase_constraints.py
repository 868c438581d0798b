"""Post-processing lines as constraints of ASE, and back.

A line names atoms from 1, ASE counts them from 0. A line fixes a value that the structure has; a
FixInternals of ASE names the value.
"""

import math

from quill_inp._kinds import PostCommandKind
from quill_inp._post_command import PostCommand

_ATOMS = {
    PostCommandKind.ATOM_CONSTRAINT: 1,
    PostCommandKind.BOND_CONSTRAINT: 2,
    PostCommandKind.ANGLE_CONSTRAINT: 3,
    PostCommandKind.DIHEDRAL_CONSTRAINT: 4,
}
_KIND = {count: kind for kind, count in _ATOMS.items()}

# By the number of atoms: how far a value may be from that of a structure with six decimals.
_TOLERANCE = {2: 1e-5, 3: 1e-2, 4: 1e-2}


def constraints_of(commands, atoms):
    """Returns the constraints of ASE that lines describe, and the lines for which there is none:
    scans, files and text, wrong atom numbers, and angles that are not defined in this structure.
    """
    taken = {1: [], 2: [], 3: [], 4: []}
    others = []
    for command in commands:
        indices = [number - 1 for number in command.atom_indices]
        value = _value(atoms, indices) if _fits(command, indices, len(atoms)) else None
        if value is None:
            others.append(command)
        else:
            taken[len(indices)].append([value, indices])
    return _made(taken), others


def commands_of(atoms):
    """Returns the lines that the constraints of `atoms` mean, and the names of those that no line
    can say.
    """
    fixed, losses = [], []
    for constraint in atoms.constraints:
        entries, lost = _entries(constraint)
        fixed.extend(entries)
        losses.extend(lost)
    losses.extend(_other_values(atoms, fixed))
    return [_command(indices) for _, indices in fixed], losses


def _fits(command, indices, count):
    if _ATOMS.get(command.kind) != len(indices) or len(set(indices)) != len(indices):
        return False
    return all(0 <= index < count for index in indices)


def _value(atoms, indices):
    """Returns what a constraint of these atoms fixes, in angstroms or degrees, or None where it is
    not defined or ASE has no derivative of it. For one atom it is 0.
    """
    if len(indices) == 1:
        return 0.0
    if not all(map(math.isfinite, atoms.positions[indices].flat)):
        return None
    try:
        if len(indices) == 2:
            return float(atoms.get_distance(*indices)) or None
        if len(indices) == 3:
            angle = float(atoms.get_angle(*indices))
            return angle if math.sin(math.radians(angle)) > 1e-6 else None
        return float(atoms.get_dihedral(*indices))
    except ZeroDivisionError:
        return None


def _made(taken):
    from ase.constraints import FixAtoms, FixInternals

    made = []
    if taken[1]:
        made.append(FixAtoms(indices=[indices[0] for _, indices in taken[1]]))
    if taken[2] or taken[3] or taken[4]:
        made.append(
            FixInternals(bonds=taken[2], angles_deg=taken[3], dihedrals_deg=taken[4])
        )
    return made


def _entries(constraint):
    """Returns what a constraint fixes, as pairs of a value, or None, and indices of atoms; and what
    of it is lost.
    """
    from ase.constraints import FixAtoms, FixBondLengths, FixInternals

    if isinstance(constraint, FixAtoms):
        return [(None, [index]) for index in constraint.get_indices()], []
    if isinstance(constraint, FixBondLengths):
        lengths = constraint.bondlengths
        values = [None] * len(constraint.pairs) if lengths is None else lengths
        return [(value, list(pair)) for value, pair in zip(values, constraint.pairs)], []
    if isinstance(constraint, FixInternals):
        entries = [*constraint.bonds, *constraint.angles, *constraint.dihedrals]
        combinations = ("bondcombos", "anglecombos", "dihedralcombos")
        lost = [f"FixInternals.{name}" for name in combinations if getattr(constraint, name)]
        return [(value, list(indices)) for value, indices in entries], lost
    return [], [type(constraint).__name__]


def _other_values(atoms, fixed):
    """Names the values that are fixed and that the structure does not have."""
    for value, indices in fixed:
        now = None if value is None else _value(atoms, indices)
        if now is None:
            continue
        distance = abs(value - now)
        if len(indices) == 4:
            distance = abs((value - now + 180.0) % 360.0 - 180.0)
        if distance > _TOLERANCE[len(indices)]:
            line = str(_command(indices)).strip()
            yield f"the value {value:g} of '{line}', which is {now:g} in the structure"


def _command(indices):
    return PostCommand(_KIND[len(indices)], [int(index) + 1 for index in indices])
