"""Prints what the Python package costs, compared with C++ and with other packages, as rows of the table of
scripts/bench.sh.

    ratios.py PROGRAM [--check] [--rounds N] [--only TEXT]

PROGRAM is that of calls.cpp. Times are those of the processor, in turns; ratios are medians.
"""

import argparse
import compileall
import functools
import pathlib
import resource
import statistics
import subprocess
import sys
import tempfile
import time

import quill_inp

SECONDS_PER_RUN = 0.01


class Table:
    def __init__(self, only, rounds):
        self.only = only
        self.rounds = rounds
        self.all_met = True

    def wants(self, what):
        return self.only in what

    def add(self, what, figures, at_most):
        low, middle, high = statistics.quantiles(figures, n=4, method="inclusive")
        is_met = middle <= at_most
        self.all_met = self.all_met and is_met
        spread = f"{low:.3f} - {high:.3f}"
        verdict = "met" if is_met else "NOT MET"
        print(f"{what:66}{middle:7.3f}{spread:>17}{at_most:8.2f}  {verdict}", flush=True)

    def compare(self, what, subject, reference, at_most):
        """Adds the ratio of two functions that take a number of repeats and return seconds."""
        if not self.wants(what):
            return
        repeats = max(repeats_of(subject), repeats_of(reference))
        ratios = []
        for number in range(self.rounds):
            if number % 2:
                below = reference(repeats)
                ratios.append(subject(repeats) / below)
            else:
                above = subject(repeats)
                ratios.append(above / reference(repeats))
        self.add(what, ratios, at_most)


def repeats_of(function):
    repeats = 1
    while function(repeats) < SECONDS_PER_RUN:
        repeats *= 2
    return repeats


def timed(work):
    """Returns a function that repeats some work and returns the seconds that it took."""

    def seconds(repeats):
        start = time.process_time()
        for _ in range(repeats):
            work()
        return time.process_time() - start

    return seconds


class Program:
    """The same work in C++."""

    def __init__(self, path):
        self.process = subprocess.Popen(
            [path], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True
        )

    def seconds(self, job, path, repeats):
        print(job, path, repeats, file=self.process.stdin, flush=True)
        return float(self.process.stdout.readline())


def change(path):
    editor = quill_inp.InputEditor(quill_inp.parse_file(path).input)
    editor.set_parameter("opt", "maxiter", "250")
    editor.write_file(f"{path}.python")


def positions_by_quill_inp(folder):
    return quill_inp.parse_file(folder / "molecule.qin").input.geometry.positions


def positions_by_ase(folder):
    """For a name that ends in .xyz, ASE chooses its reader of extended XYZ files."""
    import ase.io

    return ase.io.read(folder / "molecule.xyz").positions


def positions_by_plain_reader_of_ase(folder):
    import ase.io

    return ase.io.read(folder / "molecule.xyz", format="xyz").positions


def positions_by_rdkit(folder):
    from rdkit import Chem

    return Chem.MolFromXYZFile(str(folder / "molecule.xyz")).GetConformer().GetPositions()


def positions_by_numpy(folder):
    import numpy

    return numpy.loadtxt(folder / "molecule.xyz", skiprows=2, usecols=(1, 2, 3))


def positions_by_pandas(folder):
    import pandas

    table = pandas.read_csv(
        folder / "molecule.xyz", sep=" ", skiprows=2, header=None, usecols=(1, 2, 3), dtype=float
    )
    return table.to_numpy()


OTHERS = [
    ("ASE from XYZ", positions_by_ase, 1 / 15),
    ("ASE, format xyz", positions_by_plain_reader_of_ase, 1 / 10),
    ("RDKit from XYZ", positions_by_rdkit, 1.0),
    ("numpy.loadtxt", positions_by_numpy, 1.0),
    ("pandas.read_csv", positions_by_pandas, 1.0),
]


def add_reading(table, program, folder):
    import numpy

    path = folder / "molecule.qin"
    table.compare(
        "Python, parse_file 10^4 atoms : C++",
        timed(lambda: quill_inp.parse_file(path)),
        functools.partial(program.seconds, "parse", path),
        1.05,
    )
    ours = functools.partial(positions_by_quill_inp, folder)
    for name, read, at_most in OTHERS:
        what = f"Python, read 10^4 atoms to an array : {name}"
        if table.wants(what):
            if not numpy.allclose(ours(), read(folder), rtol=0, atol=1e-6):
                raise SystemExit(f"not the same result: {what}")
            table.compare(what, timed(ours), timed(functools.partial(read, folder)), at_most)


def add_positions(table, folder):
    what = "Python, positions of 10^4 atoms : ns an atom"
    if table.wants(what):
        geometry = quill_inp.parse_file(folder / "molecule.qin").input.geometry
        seconds = timed(lambda: geometry.positions)
        repeats = repeats_of(seconds)
        per_atom = [seconds(repeats) / repeats / 10000 * 1e9 for _ in range(table.rounds)]
        table.add(what, per_atom, 5.0)


def add_small_job(table, program, folder):
    path = folder / "small.qin"
    change(path)
    program.seconds("change", path, 1)
    if pathlib.Path(f"{path}.python").read_bytes() != pathlib.Path(f"{path}.cpp").read_bytes():
        raise SystemExit("not the same result: read, edit and write 30 atoms")
    table.compare(
        "Python, read, edit and write a file of 30 atoms : C++",
        timed(lambda: change(path)),
        functools.partial(program.seconds, "change", path),
        1.5,
    )


def milliseconds_of(code):
    """Returns how long a new Python works on some code."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    subprocess.run([sys.executable, "-c", code], check=True)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return 1e3 * (after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)


def add_import(table):
    what = "Python, import quill_inp : ms more than import json"
    if table.wants(what):
        # An installed package is compiled, whatever the environment says about writing.
        compileall.compile_dir(pathlib.Path(quill_inp.__file__).parent, quiet=1)
        more = [
            milliseconds_of("import json, quill_inp") - milliseconds_of("import json")
            for _ in range(table.rounds)
        ]
        table.add(what, more, 15.0)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--rounds", type=int, default=31)
    parser.add_argument("--only", default="")
    given = parser.parse_args()
    table = Table(given.only, given.rounds)
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([given.program, folder], check=True)
        program = Program(given.program)
        add_reading(table, program, pathlib.Path(folder))
        add_positions(table, pathlib.Path(folder))
        add_small_job(table, program, pathlib.Path(folder))
        add_import(table)
    sys.exit(1 if given.check and not table.all_met else 0)


if __name__ == "__main__":
    main()
