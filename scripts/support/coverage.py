"""Judges what clang's coverage counted: coverage.py REPORT.json LIST TOOLS(yes|no)

The report comes from "llvm-cov export". A branch is one result of a condition in the source, true or
false. What no test reaches is in the list with its reason, as a block of lines: a file, then branches
such as "never true: i < n" or, for functions that only the compiler runs, "never called: " and their
first line, then the reason, then an empty line.
"""

import json
import os
import sys
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
LIBRARIES = ("src/", "sisters/")
LOWEST_BRANCHES = 98.0
LOWEST_LINES = 95.0
# Most counts are differences of two others. Threads count without waiting for one another, so a
# difference can come out below zero, which the report shows as a huge number. Then it is not known
# whether the branch was taken.
HIGHEST_COUNT = 2**62


def share(reached, total):
    return 100.0 * reached / total if total else 100.0


def line_text(file, number):
    return (ROOT / file).read_text().splitlines()[number - 1].strip()


def condition_text(file, place):
    """The source of a condition, from line and column to line and column, as one line."""
    first_line, first_column, last_line, last_column = place
    lines = (ROOT / file).read_text().splitlines()[first_line - 1:last_line]
    lines[-1] = lines[-1][:last_column - 1]
    lines[0] = lines[0][first_column - 1:]
    return " ".join(" ".join(lines).split())


def branches_of(files):
    """How often each condition was true and false, by file and place. A template has a record for
    every instance; their counts are added."""
    counts = {"true": Counter(), "false": Counter()}
    for name, entry in files.items():
        for first_line, first_column, last_line, last_column, true, false, *_ in entry["branches"]:
            key = (name, (first_line, first_column, last_line, last_column))
            counts["true"][key] += true
            counts["false"][key] += false
    return counts


def branches_with(counts, is_wanted):
    """The branches whose count is wanted, each as its file and an item as the list has them."""
    return [(name, f"never {way}: {condition_text(name, place)}")
            for way, of_way in counts.items() for (name, place), n in of_way.items() if is_wanted(n)]


def functions_of(data, names):
    """How often each function was called, by file and first and last line of its body."""
    counts = Counter()
    for function in data["functions"]:
        name = names.get(function["filenames"][0])
        if name:
            first, _, last, *_ = function["regions"][0]
            counts[(name, first, last)] += function["count"]
    return counts


def missed_places(files):
    for name, entry in files.items():
        for line, _, count, is_counted, is_start, is_gap in entry["segments"]:
            if count == 0 and is_counted and is_start and not is_gap:
                yield f"{name}:{line}"


def read_list(path):
    listed = []
    for block in path.read_text().split("\n\n"):
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        items = [line for line in lines[1:] if line.startswith("never ")]
        if not items or len(items) + 1 == len(lines):
            raise SystemExit(f"{path} has a block without items or without a reason: {lines[0]}")
        listed += [(lines[0], item) for item in items]
    return listed


def compare(missed, doubtful, listed, list_path):
    new = Counter(missed) - Counter(listed)
    old = Counter(listed) - Counter(missed) - Counter(doubtful)
    for file, item in sorted(new.elements()):
        print(f"{file}: {item}; {list_path.name} has no reason for it")
    for file, item in sorted(old.elements()):
        print(f"{file}: {item}; so says {list_path.name}, but it does not happen")
    return not new and not old


def line_share(files, without=()):
    lines = [entry["summary"]["lines"] for entry in files.values()]
    total = sum(line["count"] for line in lines) - sum(last - first + 1 for _, first, last in without)
    return share(sum(line["covered"] for line in lines), total)


def judge_libraries(data, files, names, list_path):
    listed = read_list(list_path)
    functions = functions_of(data, {path: name for path, name in names.items() if name in files})
    uncalled = {place: (place[0], "never called: " + line_text(*place[:2]))
                for place, count in functions.items() if count == 0}
    excused = [place for place, item in uncalled.items() if item in listed]
    counts = branches_of(files)
    missed = branches_with(counts, lambda n: n == 0)
    doubtful = branches_with(counts, lambda n: n >= HIGHEST_COUNT)
    total = sum(len(of_way) for of_way in counts.values())
    lines = line_share(files, excused)
    called = share(len(functions) - len(uncalled), len(functions) - len(excused))
    taken = share(total - len(missed), total)
    print(f"src/ and sisters/: {called:.2f} % of {len(functions) - len(excused)} functions, "
          f"{lines:.2f} % of lines, {taken:.2f} % of {total} branches")
    if lines < 100.0:
        print("Not reached, among others: " + ", ".join(sorted(set(missed_places(files)))))
    fine = compare(list(uncalled.values()) + missed, doubtful, listed, list_path)
    return fine and called == 100.0 and lines == 100.0 and taken >= LOWEST_BRANCHES


def judge_lines(folder, all_files):
    files = {name: entry for name, entry in all_files.items() if name.startswith(folder)}
    if not files:
        raise SystemExit(f"the report has no file of {folder}")
    print(f"{folder}: {line_share(files):.2f} % of lines")
    if line_share(files) >= LOWEST_LINES:
        return True
    for name, entry in files.items():
        print(f"{name}: {entry['summary']['lines']['percent']:.1f} % of lines")
    return False


def name_in_tree(path):
    """The path from the root of the tree, or None for a file that is not in it. A compiler that was
    given relative paths leaves ".." in those that it notes."""
    normal = Path(os.path.normpath(path))
    return str(normal.relative_to(ROOT)) if normal.is_relative_to(ROOT) else None


def main(report, list_path, with_tools):
    data = json.loads(Path(report).read_text())["data"][0]
    names = {entry["filename"]: name_in_tree(entry["filename"]) for entry in data["files"]}
    names = {path: name for path, name in names.items() if name}
    files = {names[e["filename"]]: e for e in data["files"] if e["filename"] in names}
    libraries = {name: e for name, e in files.items() if name.startswith(LIBRARIES)}
    if not libraries:
        raise SystemExit("the report has no file of " + " or ".join(LIBRARIES))
    fine = judge_libraries(data, libraries, names, Path(list_path))
    fine &= judge_lines("lossless/", files)
    if with_tools == "yes":
        fine &= judge_lines("tools/", files)
    return 0 if fine else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
