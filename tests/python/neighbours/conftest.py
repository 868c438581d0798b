"""What the tests with other packages share."""

import os
import pathlib

import pytest


@pytest.fixture(scope="session")
def geometries():
    """The folder with geometries of other programs. Without it, these tests fail."""
    return pathlib.Path(os.environ["KELP_QUILL_INP_XYZ_DIR"])
