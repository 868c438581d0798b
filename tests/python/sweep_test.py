"""The example of a sweep writes every input once, whatever happens to its processes."""

import os
import signal
import sys

import pytest

import quill_inp
from sweeps import (
    COUNT,
    ROOT,
    begin,
    inputs_in,
    last_line_of,
    require_whole_files,
    wait_for_some_inputs,
    workers_of,
)

PROGRAM = "sweep.py"


@pytest.fixture
def folder(tmp_path):
    return tmp_path / "inputs"


def test_a_second_run_finishes_what_a_killed_process_left(folder):
    process = begin(PROGRAM, folder)
    wait_for_some_inputs(folder, process)
    os.kill(workers_of(process)[0], signal.SIGKILL)
    error = process.communicate()[1]
    assert (process.returncode, error) == (
        1,
        "a process was lost; run the same command again to write the rest\n",
    )
    whole = len(inputs_in(folder))
    assert 50 <= whole < COUNT
    require_whole_files(folder)

    assert last_line_of(PROGRAM, folder) == f"{COUNT - whole} inputs written, {whole} skipped"
    require_whole_files(folder)
    assert len(inputs_in(folder)) == COUNT
    assert last_line_of(PROGRAM, folder) == f"0 inputs written, {COUNT} skipped"


def test_an_input_is_the_template_with_one_parameter_and_structure():
    sys.path.insert(0, str(ROOT / "examples/python"))
    try:
        import sweep
    finally:
        sys.path.pop(0)
    template = quill_inp.read(ROOT / "examples/inputs/water_optimisation.qin")
    change = sweep.Change("opt.maxiter", "7", "a.xyz")
    assert str(sweep.make_input(template, change)) == (
        "#opt(maxiter=7, tight)\n#model = small-organic\n#device = cpu\n\n0 1\nXYZ a.xyz\n"
    )
