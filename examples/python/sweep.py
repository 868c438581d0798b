#!/usr/bin/env python3
"""Writes an input for every structure and every value of a parameter, with several processes.

    sweep.py water.qin out --parameter opt.maxiter --values 50 100 200 --structures *.xyz

Each file is named after the hash of what it says. So a run that was interrupted, even by the loss of
a process, is continued by the same command, and an input that is there already is not written again.
"""

import argparse
import concurrent.futures
import concurrent.futures.process
import itertools
import pathlib
import sys
from typing import NamedTuple, Optional

import quill_inp


class Change(NamedTuple):
    """What one input has that the template has not."""

    parameter: str
    value: str
    structure: str


def make_input(template: quill_inp.QuillInput, change: Change) -> quill_inp.QuillInput:
    """Returns the template with one parameter and one structure changed."""
    command, name = change.parameter.split(".", 1)
    editor = quill_inp.InputEditor(template)
    editor.set_parameter(command, name, change.value)
    editor.set_xyz_file(change.structure)
    return editor.document()


def write_input(folder: pathlib.Path, template: quill_inp.QuillInput, change: Change) -> bool:
    """Writes one input unless it is there already, and returns whether it was written."""
    document = make_input(template, change)
    path = folder / f"{document.sha256()}.qin"
    # A file has its name only once it is complete, so one that is there need not be read.
    return not path.exists() and quill_inp.write_file(path, document)


def show_progress(done: int, count: int) -> None:
    """Draws a bar over the one before, if somebody is watching."""
    if sys.stderr.isatty():
        width = 40 * done // count
        end = "\n" if done == count else ""
        print(f"\r[{'#' * width:40}] {done}/{count}", end=end, file=sys.stderr, flush=True)


def sweep(
    folder: pathlib.Path,
    template: quill_inp.QuillInput,
    changes: list[Change],
    processes: Optional[int] = None,
) -> int:
    """Writes all inputs and returns how many were not there before."""
    folder.mkdir(exist_ok=True)
    with concurrent.futures.ProcessPoolExecutor(processes) as pool:
        jobs = [pool.submit(write_input, folder, template, change) for change in changes]
        written = 0
        for done, job in enumerate(concurrent.futures.as_completed(jobs), 1):
            written += job.result()
            show_progress(done, len(jobs))
    return written


def read_arguments(description: str) -> argparse.Namespace:
    """Reads the arguments of the command; `changes` has what they ask for."""
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("template", type=pathlib.Path)
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--parameter", required=True, help="such as opt.maxiter")
    parser.add_argument("--values", nargs="+", required=True)
    parser.add_argument("--structures", nargs="+", required=True, help="XYZ files")
    parser.add_argument("--processes", type=int)
    given = parser.parse_args()
    given.changes = [
        Change(given.parameter, value, structure)
        for value, structure in itertools.product(given.values, given.structures)
    ]
    return given


def main() -> None:
    given = read_arguments("Writes an input for every structure and every value of a parameter.")
    template = quill_inp.read(given.template)
    try:
        written = sweep(given.folder, template, given.changes, given.processes)
    except concurrent.futures.process.BrokenProcessPool:
        sys.exit("a process was lost; run the same command again to write the rest")
    print(f"{written} inputs written, {len(given.changes) - written} skipped")


if __name__ == "__main__":
    main()
