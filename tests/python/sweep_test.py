"""The example of a sweep writes every input once, whatever happens to its processes."""

import os
import pathlib
import signal
import subprocess
import sys
import time

import pytest

import quill_inp

ROOT = pathlib.Path(__file__).parents[2]
VALUES = [str(value) for value in range(100)]
STRUCTURES = [f"frame{number}.xyz" for number in range(10)]


def command_of(folder):
    return [
        sys.executable,
        str(ROOT / "examples/python/sweep.py"),
        str(ROOT / "examples/inputs/water_optimisation.qin"),
        str(folder),
        *["--parameter", "opt.maxiter", "--processes", "2"],
        *["--values", *VALUES, "--structures", *STRUCTURES],
    ]


def run(folder):
    return subprocess.run(command_of(folder), capture_output=True, text=True)


def children_of(process):
    path = pathlib.Path(f"/proc/{process}/task/{process}/children")
    return [int(child) for child in path.read_text().split()]


def names_in(folder):
    return sorted(os.listdir(folder)) if folder.exists() else []


def require_whole_files(folder):
    """A file with a name of its own is complete; what a killed process leaves has another."""
    for name in names_in(folder):
        if name.endswith(".qin"):
            document = quill_inp.parse_file(folder / name).input
            assert f"{document.sha256()}.qin" == name


@pytest.fixture
def folder(tmp_path):
    return tmp_path / "inputs"


def test_a_second_run_finishes_what_a_killed_process_left(folder):
    process = subprocess.Popen(
        command_of(folder), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True
    )
    while len(names_in(folder)) < 50 and process.poll() is None:
        time.sleep(0.005)
    os.kill(children_of(process.pid)[0], signal.SIGKILL)
    error = process.communicate()[1]
    assert (process.returncode, error) == (
        1,
        "a process was lost; run the same command again to write the rest\n",
    )
    first = names_in(folder)
    assert 50 <= len(first) < 1000
    require_whole_files(folder)

    whole = [name for name in first if name.endswith(".qin")]
    second = run(folder)
    assert second.stdout == f"{1000 - len(whole)} inputs written, {len(whole)} skipped\n"
    require_whole_files(folder)
    assert len([name for name in names_in(folder) if name.endswith(".qin")]) == 1000
    assert run(folder).stdout == "0 inputs written, 1000 skipped\n"


def test_an_input_is_the_template_with_one_parameter_and_structure(folder):
    sys.path.insert(0, str(ROOT / "examples/python"))
    try:
        import sweep
    finally:
        sys.path.pop(0)
    template = quill_inp.read(ROOT / "examples/inputs/water_optimisation.qin")
    assert str(sweep.make_input(template, "opt.maxiter", "7", "a.xyz")) == (
        "#opt(maxiter=7, tight)\n#model = small-organic\n#device = cpu\n\n0 1\nXYZ a.xyz\n"
    )
