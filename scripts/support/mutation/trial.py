"""Builds one mutant next to a finished build of the tests, and runs the tests on it.

Only what contains the mutant is compiled and linked again: an object, the shared library or the
executable it is part of, and those test programs that link the object itself or include a header
that is the mutant. The others meet the mutant's library by being made to load it first; it has the
name of the one they would load. They are told the path of the mutant's executable.
"""

import hashlib
import json
import os
import resource
import shlex
import shutil
import signal
import subprocess
import time
from pathlib import Path

# What a mutant does that has no defined behaviour, the tests under the sanitizers would notice.
FLAGS = ["-O0", "-w", "-D_GLIBCXX_ASSERTIONS", "-fsanitize=undefined",
         "-fsanitize-undefined-trap-on-error"]
MEMORY = 4 << 30
LARGEST_FILE = 256 << 20


class Build:
    """The finished build of a scope: how its objects are made, what they are linked into, and the
    tests."""

    def __init__(self, root, folder, scratch, scope):
        self.root = root
        self.folder = folder
        self.scratch = scratch
        self.scope = scope
        commands = json.loads((folder / "compile_commands.json").read_text())
        self.compile = {}  # the arguments by source
        self.object = {}  # the object's path, as linking names it, by source
        for entry in commands:
            source = os.path.relpath(entry["file"], root)
            output = entry.get("output") or shlex.split(entry["command"])[-3]
            is_wanted = scope.is_source(source) or scope.is_test(source)
            if is_wanted and source not in self.compile:
                self.compile[source] = shlex.split(entry["command"])
                self.object[source] = output
        # Not anywhere: a test builds the libraries once more, in a folder of its own.
        self.libraries = [next(library for part in scope.sources
                               for library in (folder / part).glob(f"**/lib{name}.so.*.*.*"))
                          for name in scope.libraries]
        self.executables = [folder / scope.executable] if scope.executable else []
        self.programs = self.test_programs()
        targets = self.libraries + self.executables + self.programs
        self.link = {path: self.link_command(path) for path in targets}
        self.archives = self.find_archives()
        self.contents = {path: self.contents_of(path) for path in targets}
        self.users = self.find_users()
        self.seconds = {}
        self.originals = scratch / "originals"

    def ninja(self, *arguments):
        return subprocess.run(["ninja", "-C", self.folder, "-t", *arguments],
                              check=True, capture_output=True, text=True).stdout

    def test_programs(self):
        """Those that are built, not those that lie there from an earlier build."""
        # The program that is left out contains a source instead of linking it.
        return sorted(self.folder / name for name in self.targets_of("CXX_EXECUTABLE_LINKER")
                      if self.scope.is_test(name) and name.endswith("_test")
                      and "plain_number_text" not in name)

    def targets_of(self, rule):
        lines = (line.partition(": ") for line in self.ninja("targets", "all").splitlines())
        return [name for name, _, used in lines if used.startswith(rule)]

    def link_command(self, target):
        name = os.path.relpath(target, self.folder)
        text = self.ninja("commands", "-s", name)
        command = next(part for part in text.split(" && ") if f" -o {name}" in part)
        return shlex.split(command)

    def find_archives(self):
        """The objects of every archive of objects of the scope, by the archive's path."""
        archives = {}
        for name in self.targets_of("CXX_STATIC_LIBRARY_LINKER"):
            words = self.ninja("commands", "-s", name).split()
            objects = [word for word in words if word.endswith(".o")]
            if set(objects).issubset(self.object.values()):
                archives[name] = objects
        return archives

    def contents_of(self, target):
        """What a target can contain: what is linked, and what is in the archives that are."""
        words = self.link[target]
        return set(words).union(*(self.archives.get(word, []) for word in words))

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

    def runs_executable(self, program):
        """Whether a test program has nothing of the sources in itself, and meets them that way."""
        return bool(self.executables) and not any(
            path in self.contents[program] for source, path in self.object.items()
            if self.scope.is_source(source))

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
        for part in build.scope.sources:
            shutil.copytree(build.root / part, self.tree / part)
        (self.folder / "tmp").mkdir()

    def object_path(self, source):
        return self.folder / (source + ".o")

    def compile(self, source):
        """Makes the object of a source in this worker's tree, and says whether that is possible."""
        arguments = []
        for argument in self.build.compile[source]:
            for part in self.build.scope.sources:
                argument = argument.replace(f"{self.build.root}/{part}", f"{self.tree}/{part}")
            if not argument.startswith(("-W", "-g")):
                arguments.append(argument)
        target = self.object_path(source)
        target.parent.mkdir(parents=True, exist_ok=True)
        arguments[arguments.index("-o") + 1] = str(target)
        if "-include" in arguments:  # a precompiled header, which was made with other flags
            place = arguments.index("-include")
            del arguments[place:place + 2]
        for flag in ("-MF", "-MT"):
            if flag in arguments:
                arguments[arguments.index(flag) + 1] = os.devnull
        return subprocess.run(arguments + FLAGS, cwd=self.build.folder,
                              capture_output=True).returncode == 0

    def link(self, target, objects, linked):
        """Links a target with other objects; `linked` are targets that were, by their old path."""
        output = self.folder / target.name
        folder = self.build.originals
        names = {path: str(folder / (source + ".o")) for source, path in self.build.object.items()
                 if self.build.scope.is_source(source)}
        names |= {name: str(folder / name) for name in self.build.archives
                  if self.build.scope.is_source(name)}
        names |= {self.build.object[source]: str(path) for source, path in objects.items()}
        names |= {os.path.relpath(old, self.build.folder): str(new) for old, new in linked.items()}
        names[os.path.relpath(target, self.build.folder)] = str(output)
        command = [names.get(argument, argument) for argument in self.build.link[target]]
        # What an object before the archives defines is not taken from them.
        archived = self.build.contents[target].difference(self.build.link[target])
        command[command.index("-o"):0] = [str(path) for source, path in objects.items()
                                          if self.build.object[source] in archived]
        subprocess.run(command, cwd=self.build.folder, check=True, capture_output=True)
        return output

    def archive(self, name):
        """Makes one of the archives of objects of this worker's."""
        archive = self.folder / name
        archive.parent.mkdir(parents=True, exist_ok=True)
        source_of = {path: source for source, path in self.build.object.items()}
        objects = [self.object_path(source_of[path]) for path in self.build.archives[name]]
        subprocess.run(["ar", "qcs", archive, *objects], check=True)

    def run(self, program, linked, seconds):
        """Whether a test program passes within a time; `linked` is what it loads or runs."""
        # A program linked anew is in another folder than the one its run path is reckoned from.
        folders = sorted({str((self.build.folder / word).parent)
                          for words in self.build.link.values() for word in words if ".so" in word})
        libraries = [str(linked[path]) for path in self.build.libraries if path in linked]
        environment = dict(os.environ, TMPDIR=str(self.folder / "tmp"),
                           LD_PRELOAD=":".join(libraries), LD_LIBRARY_PATH=":".join(folders))
        for executable in self.build.executables:
            environment["KELP_QUILL_INP_PROGRAM"] = str(linked.get(executable, executable))
        process = subprocess.Popen(
            [program, "--gtest_fail_fast", "--gtest_brief=1"], cwd=self.folder / "tmp",
            env=environment, preexec_fn=lambda: prepare_process(seconds), stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            return process.wait(seconds) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            end_group(process)

    def try_mutant(self, mutant, originals, order):
        """Returns "killed" and by which program, "survived", "invalid" or "same"."""
        place = self.tree / mutant.file
        place.write_text(mutant.mutated())
        try:
            users = self.build.users[mutant.file]
            sources = [source for source in users if self.build.scope.is_source(source)]
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
            if self.build.runs_executable(program):
                self.link_executables(changed, linked)
            elif self.build.executables and not own_tests and not self.uses(program, changed):
                continue
            if own_tests or self.uses(program, changed):
                if not all(self.compile(test) for test in own_tests):
                    return "invalid", ""
                own_objects = {test: self.object_path(test) for test in own_tests}
                tried = self.link(program, changed | own_objects, linked)
            if not self.run(tried, linked, 6 + 8 * self.build.seconds[program]):
                return "killed", program.name
        return "survived", ""

    def link_executables(self, changed, linked):
        """Links what programs run, for the first of them."""
        for executable in self.build.executables:
            if executable not in linked:
                linked[executable] = self.link(executable, changed, linked)

    def uses(self, target, sources):
        objects = {self.build.object[source] for source in sources}
        return bool(objects.intersection(self.build.contents[target]))


def prepare_process(seconds):
    os.setpgid(0, 0)  # so that what it has started can be ended with it
    # A program that never ends is noticed sooner: what others take of the machine does not count.
    computing = int(seconds / 2) + 1
    resource.setrlimit(resource.RLIMIT_CPU, (computing, computing))
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
    resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))


def end_group(process):
    try:
        os.killpg(process.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    process.wait()


def measure(build):
    """Compiles every source unchanged, and runs every program once on the result. Returns the
    objects. What fails here would make every mutant look killed."""
    worker = Worker(build, build.originals.name)
    objects = {}
    for source in build.compile:
        if build.scope.is_source(source):
            if not worker.compile(source):
                raise SystemExit(f"{source} does not compile")
            objects[source] = worker.object_path(source)
    for name in build.archives:
        if build.scope.is_source(name):
            worker.archive(name)
    linked = {}
    for target in build.libraries + build.executables:
        linked[target] = worker.link(target, objects, linked)
    for program in build.programs:
        tried = worker.link(program, objects, linked) if worker.uses(program, objects) else program
        start = time.monotonic()
        if not worker.run(tried, linked, 120):
            raise SystemExit(f"{program.name} fails without any mutant")
        build.seconds[program] = time.monotonic() - start
    return {source: path.read_bytes() for source, path in objects.items()}
