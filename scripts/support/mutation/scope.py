"""The parts of the project that are changed, each with the tests that are to notice."""

from dataclasses import dataclass


@dataclass(frozen=True)
class Scope:
    name: str
    mutated: tuple  # folders
    left_out: tuple  # folders within them
    enumerations: tuple  # folders of the headers and sources that declare them
    sources: tuple  # folders of what is compiled again when it contains a change
    tests: tuple  # folders of the test programs that are run
    libraries: tuple  # shared ones, each after those that it is linked with
    executable: str  # that test programs run, as a path below the build
    lowest_share: float  # of the changes that the tests must notice

    def mutates(self, file):
        def is_in(folders):
            return any(file.startswith(folder + "/") for folder in folders)
        return is_in(self.mutated) and not is_in(self.left_out)

    def is_source(self, file):
        return file.startswith(tuple(folder + "/" for folder in self.sources))

    def is_test(self, file):
        return file.startswith(tuple(folder + "/" for folder in self.tests))


LIBRARIES = Scope(
    name="libraries",
    mutated=("src", "sisters"),
    # It has declarations only, and every program includes it.
    left_out=("src/support",),
    enumerations=("include",),
    sources=("src", "sisters"),
    tests=("tests/unit", "tests/interface"),
    libraries=("kelp_core_text", "kelp_chem_elements", "kelp_quill_inp"),
    executable="",
    lowest_share=0.96)

LOSSLESS = Scope(
    name="lossless",
    mutated=("lossless",),
    left_out=(),
    enumerations=("include", "lossless"),
    sources=("lossless",),
    tests=("tests/lossless",),
    libraries=("kelp_quill_lossless",),
    executable="",
    lowest_share=0.9)

TOOLS = Scope(
    name="tools",
    mutated=("tools/quill-inp/editing", "tools/quill-inp/files",
             "tools/quill-inp/formats", "tools/quill-inp/keys"),
    left_out=(),
    enumerations=("include", "tools"),
    sources=("tools",),
    tests=("tests/tools",),
    libraries=(),
    executable="tools/quill-inp/quill-inp",
    lowest_share=0.9)

SCOPES = (LIBRARIES, LOSSLESS, TOOLS)
