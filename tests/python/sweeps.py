"""Runs of the examples that write a thousand inputs."""

import os
import pathlib
import subprocess
import sys
import time

import quill_inp

ROOT = pathlib.Path(__file__).parents[2]
VALUES = [str(value) for value in range(100)]
STRUCTURES = [f"frame{number}.xyz" for number in range(10)]
COUNT = 1000


def command_of(program, folder):
    return [
        sys.executable,
        "-B",
        str(ROOT / "examples/python" / program),
        str(ROOT / "examples/inputs/water_optimisation.qin"),
        str(folder),
        *["--parameter", "opt.maxiter", "--processes", "2"],
        *["--values", *VALUES, "--structures", *STRUCTURES],
    ]


def begin(program, folder):
    """Starts a run in a group of processes of its own."""
    return subprocess.Popen(
        command_of(program, folder),
        stdout=subprocess.PIPE,
        stderr=subprocess.PIPE,
        text=True,
        start_new_session=True,
    )


def last_line_of(program, folder):
    """Runs the program to its end and returns the last line that it prints."""
    run = subprocess.run(command_of(program, folder), capture_output=True, text=True)
    assert run.returncode == 0, run.stderr
    return run.stdout.splitlines()[-1]


def names_in(folder):
    return sorted(os.listdir(folder)) if folder.exists() else []


def inputs_in(folder):
    """Returns the names of the inputs; what a killed process leaves has another kind of name."""
    return [name for name in names_in(folder) if name.endswith(".qin")]


def wait_for_some_inputs(folder, process):
    while len(inputs_in(folder)) < 50 and process.poll() is None:
        time.sleep(0.005)


def workers_of(process):
    """Returns the processes that a process has started by spawning or forking."""
    path = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children")
    found = set()
    for thread in path.parents[1].iterdir():
        found.update(int(child) for child in (thread / "children").read_text().split())
    return sorted(one for one in found if "resource_tracker" not in command_line(one))


def command_line(process):
    return pathlib.Path(f"/proc/{process}/cmdline").read_bytes().decode(errors="replace")


def require_whole_files(folder):
    """A file with a name of its own is complete."""
    for name in inputs_in(folder):
        document = quill_inp.parse_file(folder / name).input
        assert f"{document.sha256()}.qin" == name
