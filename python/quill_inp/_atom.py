"""Atoms."""

from quill_inp import _core
from quill_inp._numbers import expression
from quill_inp._parts import Part, member


class AtomRecord(Part):
    """One inline atom. The coordinates are Cartesian, in the unit of the file they come from; the
    library never converts them.
    """

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(self, symbol="", x=0.0, y=0.0, z=0.0):
        self._part = _core.new_atom(symbol, x, y, z)

    symbol = member(
        "symbol",
        'The reader stores symbols in the letter case of element symbols, "Cl"; the writer writes '
        "what is stored.",
    )
    x = member("x", "A coordinate, written with six decimals.")
    y = member("y", "A coordinate, written with six decimals.")
    z = member("z", "A coordinate, written with six decimals.")

    def __repr__(self):
        x, y, z = (expression(number) for number in (self.x, self.y, self.z))
        return f"AtomRecord({self.symbol!r}, {x}, {y}, {z})"

    def __reduce__(self):
        return type(self), (self.symbol, self.x, self.y, self.z)
