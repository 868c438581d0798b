"""Structures for the tests, and calls that must or must not warn."""

import warnings

import ase
import pytest

import quill_inp
from quill_inp.ase import NotCarriedWarning

PEROXIDE = """\
#opt(tight)
#model = small-organic

1 2
H       -0.791029     -0.934000      0.516649
O        0.000000     -0.728000      0.000000
O        0.000000      0.728000      0.000000
H        0.791029      0.934000      0.516649

{lines}"""


def peroxide(*lines):
    """Returns a document with four atoms and these post-processing lines."""
    text = PEROXIDE.format(lines="".join(f"{line}\n" for line in lines))
    return quill_inp.parse_string(text).input


def water(**named):
    return ase.Atoms("OH2", [[0, 0, 0.1], [0, 0.7, -0.4], [0, -0.7, -0.4]], **named)


def quietly(function, *arguments, **named):
    """Calls a function that must not warn."""
    with warnings.catch_warnings():
        warnings.simplefilter("error")
        return function(*arguments, **named)


def losses(function, *arguments, **named):
    """Returns what a function returns, and the message of the only warning that it issues, which
    has to point at its caller.
    """
    with pytest.warns(NotCarriedWarning) as caught:
        result = function(*arguments, **named)
    assert [one.filename for one in caught] == [__file__]
    return result, str(caught[0].message)
