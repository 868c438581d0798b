"""What an import loads."""

import subprocess
import sys

import pytest


@pytest.mark.parametrize("package", ["ase", "pymatgen", "rdkit"])
def test_a_package_is_loaded_by_the_first_call_and_not_before(package):
    code = (
        "import sys, quill_inp\n"
        f"assert 'quill_inp.{package}' not in sys.modules\n"
        f"import quill_inp.{package}\n"
        f"assert '{package}' not in sys.modules and 'numpy' not in sys.modules\n"
    )
    subprocess.run([sys.executable, "-B", "-c", code], check=True)
