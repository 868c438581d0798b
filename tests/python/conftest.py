"""What the tests of the Python package share."""

import hypothesis
import pytest

import quill_inp
from extent import THOROUGHLY

# The same examples in every run, and no clock: other programs influence it.
hypothesis.settings.register_profile(
    "tests",
    derandomize=True,
    deadline=None,
    database=None,
    max_examples=3000 if THOROUGHLY else 150,
)
hypothesis.settings.load_profile("tests")

WATER = """\
#opt(maxiter=50, tight)
#model = small-organic

0 1
O        0.000000      0.000000      0.117176
H        0.000000      0.756950     -0.468706
H        0.000000     -0.756950     -0.468706

B 1 2
S 1 3 1.5 10
"""


@pytest.fixture
def water_text():
    return WATER


@pytest.fixture
def water():
    return quill_inp.parse_string(WATER).input
