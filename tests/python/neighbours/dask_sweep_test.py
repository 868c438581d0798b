"""The example of a sweep on Dask writes every input, whatever happens to its workers."""

import os
import signal

import pytest
from sweeps import (
    COUNT,
    begin,
    inputs_in,
    last_line_of,
    require_whole_files,
    wait_for_some_inputs,
    workers_of,
)

PROGRAM = "dask_sweep.py"


@pytest.fixture
def folder(tmp_path):
    return tmp_path / "inputs"


def test_another_worker_does_the_work_of_one_that_is_killed(folder):
    process = begin(PROGRAM, folder)
    wait_for_some_inputs(folder, process)
    os.kill(workers_of(process)[0], signal.SIGKILL)
    output, error = process.communicate()
    assert process.returncode == 0, error
    assert "[########################################] | 100% Completed" in output
    assert len(inputs_in(folder)) == COUNT
    require_whole_files(folder)
    assert last_line_of(PROGRAM, folder) == f"0 inputs written, {COUNT} skipped"


def test_a_second_run_finishes_what_a_killed_run_left(folder):
    process = begin(PROGRAM, folder)
    wait_for_some_inputs(folder, process)
    os.kill(workers_of(process)[0], signal.SIGKILL)
    os.killpg(process.pid, signal.SIGKILL)
    process.communicate()
    whole = len(inputs_in(folder))
    assert 50 <= whole < COUNT
    require_whole_files(folder)

    assert last_line_of(PROGRAM, folder) == f"{COUNT - whole} inputs written, {whole} skipped"
    assert len(inputs_in(folder)) == COUNT
    require_whole_files(folder)
