"""Operations that the editor and the builder have in common."""

from quill_inp._command import CommandParameter
from quill_inp._geometry import take_atom
from quill_inp._parts import part_of


def take_parameters(parameters):
    """Returns what C++ holds of parameters."""
    return [part_of(CommandParameter, one) for one in parameters]


def set_geometry(set_atoms, set_positions, atoms, positions, symbols):
    """Sets atoms, or symbols and an array, by the function for what was given."""
    if (atoms is None) == (symbols is None):
        raise TypeError("expected either atoms or symbols")
    if positions is None:
        if symbols is not None:
            raise TypeError("expected positions with the symbols")
        set_atoms([take_atom(one) for one in atoms])
        return
    symbols = list(atoms if symbols is None else symbols)
    set_positions(symbols, _rows_of_three(positions, len(symbols)))


def _rows_of_three(positions, count):
    """Returns an array of doubles, in the order of C, with three for each symbol."""
    import numpy

    array = numpy.asarray(positions)
    if array.size == 0 and count == 0 and array.ndim < 3:
        array = numpy.zeros((0, 3))
    if array.shape != (count, 3) or array.dtype.kind not in "fiu":
        raise ValueError(
            f"positions has shape {array.shape} and dtype {array.dtype}; "
            f"expected numbers of shape ({count}, 3), a row for each symbol"
        )
    return numpy.ascontiguousarray(array, dtype=numpy.float64)
