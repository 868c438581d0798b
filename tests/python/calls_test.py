"""Sequences of calls make the same in Python and in C++."""

import inspect
import json
import os
import pathlib
import re
import struct
import subprocess

import pytest
from hypothesis import given, settings
from hypothesis import strategies as st

import quill_inp
from quill_inp import (
    AtomRecord,
    CommandParameter,
    GeometryBlock,
    HeaderCommand,
    HeaderCommandKind,
    InputBuilder,
    InputEditor,
    PostCommand,
    QuillInput,
)
from strategies import atoms, commands, documents, int32, numbers, parameters, post_commands, texts

HEADERS = pathlib.Path(__file__).parents[2] / "include/kelp/input/quill"

# Most of the time is spent on making the arguments.
few = settings(max_examples=settings.default.max_examples // 10)
some = settings(max_examples=settings.default.max_examples // 3)

# Few, so that calls of a sequence meet the same commands.
names = st.sampled_from(["opt", " # OPT", "model", "Device", "sp", "maxiter", " MaxIter "]) | texts
occurrences = st.sampled_from([0, 1, 2, 2**63 - 1])

OUTPUTS = {"to_string": [], "write_file": []}
BOTH = {
    **OUTPUTS,
    "set_flag": [names],
    "set_assignment": [names, texts],
    "set_model": [texts],
    "set_device": [texts],
    "set_task": [names, st.lists(parameters, max_size=3)],
    "add_command": [commands],
    "set_charge_and_multiplicity": [int32, int32],
    "clear_charge_and_multiplicity": [],
    "set_geometry": [st.lists(atoms, max_size=3)],
    "set_geometry_of_arrays": [st.lists(atoms, max_size=3)],
    "set_xyz_files": [st.lists(texts, max_size=3)],
    "set_xyz_file": [texts],
    "set_xyz_trajectory": [texts],
    "add_atom": [atoms],
    "add_post_command": [post_commands],
    "add_atom_constraint": [int32],
    "add_bond_constraint": [int32, int32],
    "add_angle_constraint": [int32, int32, int32],
    "add_dihedral_constraint": [int32, int32, int32, int32],
    "add_scan": [st.lists(int32, max_size=5), numbers, int32],
    "set_post_file": [texts],
}
CALLS = {
    InputBuilder: {**BOTH, "set_task_parameter": [names, names, texts]},
    InputEditor: {
        **BOTH,
        "has_command": [names],
        "has_task_command": [],
        "command_names": [],
        "get_assignment": [names],
        "model": [],
        "device": [],
        "get_parameter": [names, names, occurrences],
        "set_parameter": [names, names, texts, occurrences],
        "remove_parameter": [names, names, occurrences],
        "remove_command": [names, st.none() | occurrences],
        "clear_post_commands": [],
    },
}


def calls_of(kind, name):
    return st.tuples(st.just(name), st.tuples(*CALLS[kind][name]))


def sequences_of(kind):
    return st.lists(st.one_of([calls_of(kind, name) for name in CALLS[kind]]), max_size=12)


def text_word(data):
    return "=" + data.hex()


def document_word(document):
    return text_word(json.dumps(document.to_dict()).encode())


def words_of(value):
    """Returns an argument as words of the program, see calls/call_words.hpp."""
    if value is None:
        return ["-"]
    if isinstance(value, int):
        return [str(value)]
    if isinstance(value, float):
        return [struct.pack(">d", value).hex()]
    if isinstance(value, str):
        return [text_word(value.encode("utf-8", "surrogateescape"))]
    if isinstance(value, HeaderCommand):
        return [document_word(QuillInput([value]))]
    if isinstance(value, AtomRecord):
        return [document_word(QuillInput(geometry=GeometryBlock(atoms=[value])))]
    if isinstance(value, PostCommand):
        return [document_word(QuillInput(post_commands=[value]))]
    return [str(len(value)), *[word for one in value for word in words_of(one)]]


def words_of_call(name, arguments):
    if name.startswith("set_geometry"):
        return [name, document_word(QuillInput(geometry=GeometryBlock(atoms=arguments[0])))]
    if name == "set_task":
        command = HeaderCommand(kind=HeaderCommandKind.FLAG, parameters=arguments[1])
        return [name, *words_of(arguments[0]), document_word(QuillInput([command]))]
    return [name, *[word for one in arguments for word in words_of(one)]]


def plain(answer):
    """Returns an answer as the program writes it."""
    if isinstance(answer, str):
        return answer.encode("utf-8", "surrogateescape").hex()
    return [plain(one) for one in answer] if isinstance(answer, list) else answer


def made_in_python(target, name, arguments, folder):
    """Returns what a call returns, and the document after it."""
    if name == "write_file":
        target.write_file(folder / "python.qin")
        answer = (folder / "python.qin").read_bytes().hex()
    elif name == "set_geometry_of_arrays":
        (taken,) = arguments
        answer = target.set_geometry(
            [atom.symbol for atom in taken], [[atom.x, atom.y, atom.z] for atom in taken]
        )
    else:
        answer = plain(getattr(target, name)(*arguments))
    if isinstance(target, InputBuilder) and name not in OUTPUTS:
        assert answer is target
        answer = None
    return [answer, target.document().to_dict()]


class Program:
    """The program that makes calls in C++."""

    def __init__(self, folder):
        self.folder = folder
        self.process = subprocess.Popen(
            [os.environ["QUILL_INP_CALLS"]],
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            encoding="utf-8",
        )

    def answer(self, words):
        self.process.stdin.write(" ".join(words) + "\n")
        self.process.stdin.flush()
        return json.loads(self.process.stdout.readline())

    def made(self, name, arguments):
        if name == "write_file":
            return self.answer([name, *words_of(str(self.folder / "cpp.qin"))])
        return self.answer(words_of_call(name, arguments))

    def close(self):
        self.process.stdin.close()
        assert self.process.wait() == 0


@pytest.fixture(scope="module")
def program(tmp_path_factory):
    program = Program(tmp_path_factory.mktemp("written"))
    yield program
    program.close()


def require_same(program, target, sequence):
    for name, arguments in sequence:
        in_python = made_in_python(target, name, arguments, program.folder)
        # As texts, since 0 and -0 are equal numbers.
        assert json.dumps(in_python) == json.dumps(program.made(name, arguments)), name


def editors_of(program, document):
    program.answer(["InputEditor", document_word(document)])
    return InputEditor(document)


def builders_of(program):
    program.answer(["InputBuilder"])
    return InputBuilder()


def public_names(kind):
    return {name for name, _ in inspect.getmembers(kind) if not name.startswith("_")}


@pytest.mark.parametrize("kind", CALLS, ids=lambda kind: kind.__name__)
def test_every_operation_is_in_the_sequences_and_is_one_of_cpp(kind):
    called = set(CALLS[kind]) - {"set_geometry_of_arrays"}
    # The document is compared after each call.
    assert called == public_names(kind) - {"document"}
    header = (HEADERS / f"{kind.__name__[5:].lower()}.hpp").read_text(encoding="utf-8")
    exported = re.findall(r"KELP_QUILL_INP_EXPORT [^;(]*?(\w+)\(", header)
    assert called == set(exported) - {kind.__name__}


@pytest.mark.parametrize("name", CALLS[InputEditor])
@few
@given(data=st.data())
def test_each_operation_of_the_editor(program, name, data):
    editor = editors_of(program, data.draw(documents))
    require_same(program, editor, [data.draw(calls_of(InputEditor, name))])


@some
@given(document=documents, sequence=sequences_of(InputEditor))
def test_sequences_of_the_editor(program, document, sequence):
    require_same(program, editors_of(program, document), sequence)


@pytest.mark.parametrize("name", CALLS[InputBuilder])
@few
@given(data=st.data())
def test_each_operation_of_the_builder(program, name, data):
    require_same(program, builders_of(program), [data.draw(calls_of(InputBuilder, name))])


@some
@given(sequence=sequences_of(InputBuilder))
def test_sequences_of_the_builder(program, sequence):
    require_same(program, builders_of(program), sequence)


@some
@given(document=documents, sequence=sequences_of(InputEditor))
def test_sequences_of_a_text_under_edit(document, sequence):
    text = str(document)
    editor = InputEditor(quill_inp.parse_string(text).input)
    under_edit = quill_inp.edit(text, allow_loss=True)
    for name, arguments in sequence:
        if name in OUTPUTS:
            continue
        if name == "set_geometry_of_arrays":
            name = "set_geometry"
        assert getattr(under_edit, name)(*arguments) == getattr(editor, name)(*arguments)
        assert repr(under_edit.document()) == repr(editor.document())
