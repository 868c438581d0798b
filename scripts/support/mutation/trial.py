"""Builds one mutant next to a finished build of the tests, and runs the tests on it.

Only what contains the mutant is compiled and linked again: an object, the shared library it is part
of, and those test programs that link the object itself or include a header that is the mutant. The
other programs are made to load the mutant's library first; it has the name of the library that they
would load.
"""

import hashlib
import json
import os
import resource
import shlex
import shutil
import subprocess
import time
from pathlib import Path

SOURCES = ("src/", "sisters/")
LIBRARIES = ("kelp_core_text", "kelp_chem_elements", "kelp_quill_inp")
# What a mutant does that has no defined behaviour, the tests under the sanitizers would notice.
FLAGS = ["-O0", "-w", "-D_GLIBCXX_ASSERTIONS", "-fsanitize=undefined",
         "-fsanitize-undefined-trap-on-error"]
MEMORY = 4 << 30
LARGEST_FILE = 256 << 20


class Build:
    """The finished build: how its objects are made, what they are linked into, and the tests."""

    def __init__(self, root, folder, scratch):
        self.root = root
        self.folder = folder
        self.scratch = scratch
        commands = json.loads((folder / "compile_commands.json").read_text())
        self.compile = {}  # the arguments by source
        self.object = {}  # the object's path, as linking names it, by source
        for entry in commands:
            source = os.path.relpath(entry["file"], root)
            output = entry.get("output") or shlex.split(entry["command"])[-3]
            if source.startswith(SOURCES + ("tests/unit/",)) and source not in self.compile:
                self.compile[source] = shlex.split(entry["command"])
                self.object[source] = output
        # Not anywhere: a test builds the libraries once more, in a folder of its own.
        self.libraries = [next(library for part in SOURCES
                               for library in (folder / part).glob(f"**/lib{name}.so.*.*.*"))
                          for name in LIBRARIES]
        self.programs = self.test_programs()
        self.link = {path: self.link_command(path) for path in self.libraries + self.programs}
        self.users = self.find_users()
        self.seconds = {}
        self.originals = scratch / "originals"

    def ninja(self, *arguments):
        return subprocess.run(["ninja", "-C", self.folder, "-t", *arguments],
                              check=True, capture_output=True, text=True).stdout

    def test_programs(self):
        """Those that are built, not those that lie there from an earlier build."""
        rules = (line.partition(": ") for line in self.ninja("targets", "all").splitlines())
        names = (name for name, _, rule in rules if rule.startswith("CXX_EXECUTABLE_LINKER")
                 and name.startswith(("tests/unit/", "tests/interface/")))
        # The program that is left out contains a source instead of linking it.
        return sorted(self.folder / name for name in names
                      if name.endswith("_test") and "plain_number_text" not in name)

    def link_command(self, target):
        name = os.path.relpath(target, self.folder)
        text = self.ninja("commands", "-s", name)
        command = next(part for part in text.split(" && ") if f" -o {name}" in part)
        return shlex.split(command)

    def find_users(self):
        """The sources, those of unit tests among them, that contain a file, by the file."""
        text = self.ninja("deps")
        users, output = {}, ""
        source_of = {path: source for source, path in self.object.items()}
        for line in text.splitlines():
            if not line.startswith(" "):
                output = line.split(":")[0]
            elif output in source_of:
                path = os.path.relpath(self.folder / line.strip(), self.root)
                users.setdefault(path, []).append(source_of[output])
        return users

    def tests_digest(self):
        stamps = [f"{path} {path.stat().st_mtime_ns}" for path in self.programs]
        return hashlib.sha256("\n".join(stamps).encode()).hexdigest()[:16]


class Worker:
    """A copy of the sources in which one mutant at a time is put in place."""

    def __init__(self, build, name):
        self.build = build
        self.folder = build.scratch / name
        self.tree = self.folder / "tree"
        shutil.rmtree(self.folder, ignore_errors=True)
        for part in ("src", "sisters"):
            shutil.copytree(build.root / part, self.tree / part)
        (self.folder / "tmp").mkdir()

    def object_path(self, source):
        return self.folder / (source + ".o")

    def compile(self, source):
        """Makes the object of a source in this worker's tree, and says whether that is possible."""
        arguments = []
        for argument in self.build.compile[source]:
            for part in ("src", "sisters"):
                argument = argument.replace(f"{self.build.root}/{part}", f"{self.tree}/{part}")
            if not argument.startswith(("-W", "-g")):
                arguments.append(argument)
        target = self.object_path(source)
        target.parent.mkdir(parents=True, exist_ok=True)
        arguments[arguments.index("-o") + 1] = str(target)
        for flag in ("-MF", "-MT"):
            if flag in arguments:
                arguments[arguments.index(flag) + 1] = os.devnull
        return subprocess.run(arguments + FLAGS, cwd=self.build.folder,
                              capture_output=True).returncode == 0

    def link(self, target, objects, linked):
        """Links a target with other objects; `linked` are targets that were, by their old path."""
        output = self.folder / target.name
        names = {self.build.object[source]: str(self.build.originals / (source + ".o"))
                 for source in self.build.compile if source.startswith(SOURCES)}
        names |= {self.build.object[source]: str(path) for source, path in objects.items()}
        names |= {os.path.relpath(old, self.build.folder): str(new) for old, new in linked.items()}
        names[os.path.relpath(target, self.build.folder)] = str(output)
        command = [names.get(argument, argument) for argument in self.build.link[target]]
        subprocess.run(command, cwd=self.build.folder, check=True, capture_output=True)
        return output

    def run(self, program, libraries, seconds):
        """Whether a test program passes within a time."""
        # A program that was linked again is in another folder than its run path expects.
        folders = [str(library.parent) for library in self.build.libraries]
        environment = dict(os.environ, TMPDIR=str(self.folder / "tmp"),
                           LD_PRELOAD=":".join(map(str, libraries)),
                           LD_LIBRARY_PATH=":".join(folders))
        try:
            return subprocess.run(
                [program, "--gtest_fail_fast", "--gtest_brief=1"], cwd=self.folder / "tmp",
                env=environment, timeout=seconds, preexec_fn=limit_resources,
                stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                stderr=subprocess.DEVNULL).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def try_mutant(self, mutant, originals, order):
        """Returns "killed" and by which program, "survived", "invalid" or "same"."""
        place = self.tree / mutant.file
        place.write_text(mutant.mutated())
        try:
            users = self.build.users[mutant.file]
            sources = [source for source in users if source.startswith(SOURCES)]
            if not all(self.compile(source) for source in sources):
                return "invalid", ""
            changed = {source: self.object_path(source) for source in sources
                       if self.object_path(source).read_bytes() != originals[source]}
            if not changed:
                return "same", ""
            return self.test(changed, [user for user in users if user not in sources], order)
        finally:
            place.write_text(mutant.text)
            shutil.rmtree(self.folder / "tmp")
            (self.folder / "tmp").mkdir()

    def test(self, changed, tests, order):
        linked = {}
        for library in self.build.libraries:
            if self.uses(library, changed):
                linked[library] = self.link(library, changed, linked)
        for program in order:
            tried = program
            own_tests = [test for test in tests if self.uses(program, [test])]
            if own_tests or self.uses(program, changed):
                if not all(self.compile(test) for test in own_tests):
                    return "invalid", ""
                own_objects = {test: self.object_path(test) for test in own_tests}
                tried = self.link(program, changed | own_objects, linked)
            if not self.run(tried, linked.values(), 6 + 8 * self.build.seconds[program]):
                return "killed", program.name
        return "survived", ""

    def uses(self, target, sources):
        objects = {self.build.object[source] for source in sources}
        return bool(objects.intersection(self.build.link[target]))


def limit_resources():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))


def measure(build):
    """Compiles every source unchanged, and runs every program once on the result. Returns the
    objects. What fails here would make every mutant look killed."""
    worker = Worker(build, build.originals.name)
    objects = {}
    for source in build.compile:
        if source.startswith(SOURCES):
            if not worker.compile(source):
                raise SystemExit(f"{source} does not compile")
            objects[source] = worker.object_path(source)
    linked = {}
    for library in build.libraries:
        linked[library] = worker.link(library, objects, linked)
    for program in build.programs:
        tried = worker.link(program, objects, linked) if worker.uses(program, objects) else program
        start = time.monotonic()
        if not worker.run(tried, linked.values(), 120):
            raise SystemExit(f"{program.name} fails without any mutant")
        build.seconds[program] = time.monotonic() - start
    return {source: path.read_bytes() for source, path in objects.items()}
