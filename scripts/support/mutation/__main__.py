"""Applies mutants to the sources and says how many of them the tests notice; see mutate.sh."""

import argparse
import hashlib
import json
import queue
import sys
import threading
from collections import Counter
from pathlib import Path

import equivalent
from mutants import Source, enumerations_in
from scope import SCOPES
from trial import Build, Worker, measure

ROOT = Path(__file__).resolve().parents[3]
SCRATCH = ROOT / "build" / "mutation"
RESULTS = SCRATCH / "results.jsonl"
EQUIVALENT = ROOT / "tests" / "mutation" / "equivalent.txt"


def sources_in(folders):
    return sorted(path for folder in folders for path in (ROOT / folder).glob("**/*.[ch]pp"))


def mutants_of(scope, names):
    enumerations = [enumeration for path in sources_in(scope.enumerations)
                    for enumeration in enumerations_in(path.read_text())]
    files = [path.relative_to(ROOT) for path in sources_in(scope.mutated)]
    return [mutant for file in files
            if scope.mutates(str(file)) and (not names or any(map(file.is_relative_to, names)))
            for mutant in Source(str(file), (ROOT / file).read_text(), enumerations).mutants()]


def all_mutants(names):
    for name in names:
        if not any(mutants_of(scope, [name]) for scope in SCOPES):
            raise SystemExit(f"Nothing in {name} can be changed; these folders are: " + ", ".join(
                folder for scope in SCOPES for folder in scope.mutated))
    return [mutant for scope in SCOPES for mutant in mutants_of(scope, names)]


def sample_of(mutants, seed, count):
    """The first mutants in an order in which each has a place of its own: a small sample is the
    beginning of a large one, and both stay the same where the sources do."""
    seen = Counter()
    places = {}
    for mutant in mutants:
        identity = (mutant.file, *mutant.lines())
        seen[identity] += 1
        text = "\0".join(map(str, (seed, *identity, seen[identity])))
        places[mutant] = hashlib.sha256(text.encode()).digest()
    return sorted(mutants, key=places.get)[:count]


class Results:
    """What earlier runs have found out, by the mutant's key. A mutant that survived is tried again
    when the tests have changed."""

    def __init__(self, tests):
        self.tests = tests
        self.lock = threading.Lock()
        self.known = {}
        if RESULTS.exists():
            for line in RESULTS.read_text().splitlines():
                entry = json.loads(line)
                if entry["result"] != "survived" or entry["tests"] == tests:
                    self.known[entry["key"]] = entry["result"]

    def add(self, mutant, result, program):
        entry = {"key": mutant.key(), "result": result, "tests": self.tests, "by": program,
                 "file": mutant.file, "kind": mutant.kind, "lines": mutant.lines()}
        with self.lock, RESULTS.open("a") as file:
            self.known[mutant.key()] = result
            file.write(json.dumps(entry) + "\n")


def work(build, worker, originals, jobs, results):
    """The program that noticed the last mutant of a file is asked first about the next one."""
    last_killer = {}
    while True:
        try:
            mutant = jobs.get_nowait()
        except queue.Empty:
            return
        order = sorted(build.programs, key=lambda path: (
            build.seconds[path] * (0.01 if last_killer.get(mutant.file) == path.name else 1)))
        result, program = worker.try_mutant(mutant, originals, order)
        if program:
            last_killer[mutant.file] = program
        results.add(mutant, result, program)


def try_all(build, mutants, results, count):
    originals = measure(build)
    workers = [Worker(build, f"worker{i}") for i in range(count)]
    jobs = queue.Queue()
    for mutant in mutants:
        jobs.put(mutant)
    threads = [threading.Thread(target=work, args=(build, worker, originals, jobs, results))
               for worker in workers]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()


def try_scope(scope, mutants, workers):
    scratch = SCRATCH / scope.name
    scratch.mkdir(parents=True, exist_ok=True)
    build = Build(ROOT, ROOT / "build" / "dev", scratch, scope)
    results = Results(build.tests_digest())
    untried = [mutant for mutant in mutants if mutant.key() not in results.known]
    if untried:
        try_all(build, untried, results, workers)
    return results


def report(scope, mutants, results, reasons):
    """Prints the figures and what is left to do, and says whether that is nothing."""
    outcome = {mutant: results.known[mutant.key()] for mutant in mutants}
    counts = Counter(outcome.values())
    survivors = [mutant for mutant in mutants if outcome[mutant] == "survived"]
    unargued = [m for m in survivors if (m.file, *m.lines()) not in reasons]
    for mutant in unargued:
        before, after = mutant.lines()
        print(f"{mutant.file}\n- {before}\n+ {after}\n(line {mutant.line_number()})\n")
    total = counts["killed"] + counts["survived"]
    share = counts["killed"] / total if total else 1.0
    print(f"{scope.name}: {total} mutants, {counts['killed']} noticed ({100 * share:.1f} %), "
          f"{len(survivors) - len(unargued)} equivalent, {len(unargued)} neither; besides, "
          f"{counts['invalid']} do not compile and {counts['same']} change no instruction")
    # A small sample may hold any number of equivalent mutants.
    return not unargued and (share >= scope.lowest_share or total < 400)


def stale_reasons(survivors, reasons):
    alive = {(mutant.file, *mutant.lines()) for mutant in survivors}
    return [entry for entry in reasons if entry not in alive]


def main():
    parser = argparse.ArgumentParser(prog="mutate.sh", description=__doc__)
    parser.add_argument("--seed", type=int, default=1, help="which mutants the sample holds")
    parser.add_argument("--sample", type=int, metavar="N",
                        help="how many mutants to apply; all if not given")
    parser.add_argument("--workers", type=int, default=2)
    parser.add_argument("--list", action="store_true", help="print the mutants and stop")
    parser.add_argument("files", nargs="*", help="files and folders; all if none is given")
    arguments = parser.parse_args()

    mutants = all_mutants(arguments.files)
    if arguments.sample:
        mutants = sample_of(mutants, arguments.seed, arguments.sample)
    if arguments.list:
        for mutant in mutants:
            print(f"{mutant.file}:{mutant.line_number()} {mutant.kind}: {mutant.lines()[1]}")
        return 0

    reasons = equivalent.read(EQUIVALENT)
    fine = True
    survivors = []
    for scope in SCOPES:
        in_scope = [mutant for mutant in mutants if scope.mutates(mutant.file)]
        if not in_scope:
            continue
        results = try_scope(scope, in_scope, arguments.workers)
        fine = report(scope, in_scope, results, reasons) and fine
        survivors += [m for m in in_scope if results.known[m.key()] == "survived"]
    if not arguments.sample and not arguments.files:
        for file, before, after in stale_reasons(survivors, reasons):
            fine = False
            print(f"There is a reason for what no test misses:\n{file}\n- {before}\n+ {after}\n")
    return 0 if fine else 1


if __name__ == "__main__":
    sys.exit(main())
