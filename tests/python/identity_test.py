"""What a document is beyond Python: its hash, its JSON, its pickles."""

import hashlib
import json
import os
import pathlib
import pickle
import subprocess

import jsonschema
import pytest
from hypothesis import given

import quill_inp
from quill_inp import (
    AtomRecord,
    CommandParameter,
    GeometryBlock,
    GeometryKind,
    HeaderCommand,
    HeaderCommandKind,
    LossError,
    PostCommand,
    PostCommandKind,
    QuillInput,
)
from strategies import documents

ROOT = pathlib.Path(__file__).parents[2]
INPUTS = sorted((ROOT / "examples/inputs").glob("*.qin"))
SCHEMA = json.loads((ROOT / "docs/quill-inp.schema.json").read_text(encoding="utf-8"))


def run_tool(*arguments, text):
    return subprocess.run(
        [os.environ["QUILL_INP_PROGRAM"], *arguments], input=text, capture_output=True
    )


@pytest.mark.parametrize("path", INPUTS, ids=lambda path: path.stem)
def test_hash_and_json_are_those_of_the_tool(path):
    text = path.read_bytes()
    document = quill_inp.parse_string(text).input
    assert document.to_dict() == json.loads(run_tool("json", "-q", "-", text=text).stdout)
    # The tool also refuses an input of which its canonical text loses something.
    printed = run_tool("hash", "-q", "--allow-loss", "-", text=text).stdout.decode()
    assert document.sha256() == printed.split()[0]


def test_the_hash_is_that_of_the_canonical_text(water):
    assert QuillInput().sha256() == (
        "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"
    )
    assert water.sha256() == "0418585d957aeac2f3e246c9118cd0356d1621b28824cefcbbc04c2fe56ff89b"


IDENTICAL = [
    ("#SP\n\n0 1\nHe 0 0 0\n", "  #SP  \n0 1\n\nhe 0.0000001 0e3 .0\n\n"),
    ("#a = 'x y'\n\nHe 0 0 0\n", '#a = "x y"\n\nHe 0 0 0\n'),
    ("#sp\n\nHe 0 0 0\n\nB 1 2\n", "#sp\r\n\r\nHe 0 0 0\r\n\r\nb  1   2\r\n"),
]
OTHER = [
    ("#sp\n\n0 1\nHe 0 0 0\n", "#SP\n\n0 1\nHe 0 0 0\n"),
    ("#a\n#b\n\nHe 0 0 0\n", "#b\n#a\n\nHe 0 0 0\n"),
    ("#a(x, y)\n\nHe 0 0 0\n", "#a(y, x)\n\nHe 0 0 0\n"),
    ("#sp\n\nHe 0 0 0\n", "#sp\n\n0 1\nHe 0 0 0\n"),
    ("#sp\n\nHe 0 0 0\n", "#sp\n\nHe 0 0 0.000001\n"),
    ("#sp\n\nXYZ a.xyz\n", "#sp\n\nXYZ ./a.xyz\n"),
]


@pytest.mark.parametrize("one, other", IDENTICAL)
def test_layout_is_no_part_of_the_identity(one, other):
    assert quill_inp.parse_string(one).input.sha256() == quill_inp.parse_string(other).input.sha256()


@pytest.mark.parametrize("one, other", OTHER)
def test_order_and_six_decimals_are_part_of_the_identity(one, other):
    assert quill_inp.parse_string(one).input.sha256() != quill_inp.parse_string(other).input.sha256()


REFERENCES = [
    ("#sp\n\nXYZ a.xyz\nXYZ b c.xyz\n\nPOST p.inp\n", ["a.xyz", "b c.xyz", "p.inp"]),
    ("#irc\n\nXYZTRAJ a.xyz\n", ["a.xyz"]),
    ("#sp\n\nHe 0 0 0\n\nC 1\nPOST p.inp\nPOST a.xyz\n", ["p.inp", "a.xyz"]),
    ("#sp\n\nHe 0 0 0\n", []),
]


@pytest.mark.parametrize("text, files", REFERENCES)
def test_referenced_files_are_those_that_the_text_names(text, files):
    assert quill_inp.parse_string(text).input.referenced_files() == files


def test_files_that_no_line_names_are_not_referenced():
    files = ["a.xyz", "b.xyz"]
    of_kind = {
        kind: QuillInput(geometry=GeometryBlock(kind, xyz_files=files)).referenced_files()
        for kind in GeometryKind
    }
    assert of_kind == {
        GeometryKind.NONE: [],
        GeometryKind.ATOMS: [],
        GeometryKind.XYZ_FILE: files,
        GeometryKind.XYZ_TRAJECTORY: ["a.xyz"],
    }
    line = PostCommand(PostCommandKind.RAW, post_file="p.inp", raw_text="x y")
    assert QuillInput(post_commands=[line]).referenced_files() == []


@pytest.fixture
def folder_of_files(tmp_path):
    for name in ("a.xyz", "b c.xyz", "p.inp"):
        (tmp_path / name).write_bytes(b"1\n\n" + name.encode() + b" \xe9\n")
    return tmp_path


# As the shell has it: the hash of the input and those of the files, a line each, through sha256sum.
BY_CONTENT = [
    "74f60f1042b7885748e65f54968fb783b2bcd383e1b5c47b5fb4a965541ca8c0",
    "ce3380e84214c25acfc3915288e42d340208f70d11a60310e4656e752279c8d3",
    "d82c81c5520fee558c501221178c0934a009d0ee2c4a2d0562828a059b39826a",
    "eab7a5484bdc1cef1c936d6d867ae118467fe08de97a8a4a58ad1f886a938e4d",
]


@pytest.mark.parametrize("reference, golden", zip(REFERENCES, BY_CONTENT))
def test_the_hash_by_content_is_that_of_hashes(folder_of_files, reference, golden):
    text, files = reference
    document = quill_inp.parse_string(text).input
    assert document.sha256(base=folder_of_files) == golden
    assert document.sha256(base=str(folder_of_files)) == golden
    lines = [document.sha256(), *[hash_of(folder_of_files / name) for name in files]]
    assert hashlib.sha256("".join(f"{one}\n" for one in lines).encode()).hexdigest() == golden


def hash_of(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def test_every_referenced_file_counts_by_its_content_alone(folder_of_files):
    document = quill_inp.parse_string(REFERENCES[0][0]).input
    before = document.sha256(base=folder_of_files)
    for path in sorted(folder_of_files.iterdir()):
        content = path.read_bytes()
        path.write_bytes(content + b"\n")
        assert document.sha256(base=folder_of_files) != before
        path.write_bytes(content)
        assert document.sha256(base=folder_of_files) == before


def test_a_missing_file_has_no_content(folder_of_files):
    (folder_of_files / "b c.xyz").unlink()
    with pytest.raises(FileNotFoundError, match="b c.xyz"):
        quill_inp.parse_string(REFERENCES[0][0]).input.sha256(base=folder_of_files)


def test_a_document_that_no_text_says_has_no_hash():
    document = QuillInput(post_commands=[PostCommand(PostCommandKind.ANGLE_CONSTRAINT, [1, 2, 3])])
    with pytest.raises(LossError, match="line 1 would be read as an atom of element A") as caught:
        document.sha256()
    assert caught.value.line == 1
    with pytest.raises(LossError, match="contains a line break"):
        QuillInput([HeaderCommand("a\nb")]).sha256()


@given(documents)
def test_a_dict_holds_all_of_a_document(document):
    members = document.to_dict()
    jsonschema.validate(members, SCHEMA)
    again = QuillInput.from_dict(json.loads(json.dumps(members)))
    assert repr(again) == repr(document)


EVERYTHING = QuillInput(
    [
        HeaderCommand(
            "opt",
            HeaderCommandKind.PARAMETER_LIST,
            None,
            [CommandParameter("maxiter", "50"), CommandParameter("basis", "")],
        ),
        HeaderCommand("caf\udce9", HeaderCommandKind.ASSIGNMENT, "x"),
    ],
    GeometryBlock(
        GeometryKind.ATOMS, -1, 2, True, [AtomRecord("O", -0.0, float("inf"), 0.1)], ["a b.xyz"]
    ),
    [
        PostCommand(PostCommandKind.SCAN, [1, 2], 1.5, 10, "", "S 1 2 1.5 10"),
        PostCommand(PostCommandKind.POST_FILE, post_file="p.inp"),
    ],
)


def test_a_dict_has_the_members_of_the_library():
    assert EVERYTHING.to_dict() == {
        "commands": [
            {
                "name": "opt",
                "kind": "parameter_list",
                "parameters": [
                    {"name": "maxiter", "value": "50"},
                    {"name": "basis", "value": ""},
                ],
            },
            {"name": {"bytes": "636166e9"}, "kind": "assignment", "value": "x"},
        ],
        "geometry": {
            "kind": "atoms",
            "charge": -1,
            "multiplicity": 2,
            "atoms": [{"symbol": "O", "x": -0.0, "y": "inf", "z": 0.1}],
            "xyz_files": ["a b.xyz"],
        },
        "post_commands": [
            {
                "kind": "scan",
                "atom_indices": [1, 2],
                "scan_value": 1.5,
                "scan_steps": 10,
                "raw_text": "S 1 2 1.5 10",
            },
            {"kind": "post_file", "post_file": "p.inp"},
        ],
    }


WRONG = [
    ({"commands": [{"nam": "x"}]}, "/commands/0: unknown member 'nam'; did you mean 'name'?"),
    ({"commands": [{"name": 5}]}, "/commands/0/name: expected a string"),
    ({"geometry": {"kind": "atom"}}, "/geometry/kind: expected "),
    ({"geometry": {"kind": "atoms", "charge": 2**31}}, "/geometry/charge: expected a 32-bit integer"),
    ([], "the outermost value: expected an object"),
    ({"geometry": {"kind": "atoms", "charge": float("nan")}}, "JSON"),
    ({"commands": [{"name": "\udce9"}]}, ""),
]


@pytest.mark.parametrize("members, message", WRONG)
def test_a_dict_of_another_form_is_refused(members, message):
    with pytest.raises(ValueError) as caught:
        QuillInput.from_dict(members)
    assert message in str(caught.value)


# What earlier versions of the package pickled. Never changed, only added to.
OLD_PICKLES = [
    (
        b'\x80\x02cquill_inp._document\n_from_pickle\nq\x00cquill_inp\nQuillInput\n'
        b'q\x01K\x01XY\x02\x00\x00{\n  "commands": [\n    {"name": "opt", "kind": "para'
        b'meter_list", "parameters": [{"name": "maxiter", "value": "50'
        b'"}, {"name": "basis", "value": ""}]},\n    {"name": {"bytes":'
        b' "636166e9"}, "kind": "assignment", "value": "x"}\n  ],\n  "ge'
        b'ometry": {\n    "kind": "atoms",\n    "charge": -1,\n    "multi'
        b'plicity": 2,\n    "atoms": [\n      {"symbol": "O", "x": -0.0,'
        b' "y": "inf", "z": 0.1}\n    ],\n    "xyz_files": ["a b.xyz"]\n '
        b' },\n  "post_commands": [\n    {"kind": "scan", "atom_indices"'
        b': [1, 2], "scan_value": 1.5, "scan_steps": 10, "raw_text": "'
        b'S 1 2 1.5 10"},\n    {"kind": "post_file", "post_file": "p.in'
        b'p"}\n  ]\n}\nq\x02\x87q\x03Rq\x04.'
    ),
]


@pytest.mark.parametrize("data", OLD_PICKLES)
def test_an_old_pickle_can_be_read(data):
    assert repr(pickle.loads(data)) == repr(EVERYTHING)


def test_a_pickle_of_a_later_version_is_refused():
    make, (kind, version, text) = EVERYTHING.__reduce__()
    assert version == 1
    with pytest.raises(ValueError, match="a pickle of version 2, which is newer"):
        make(kind, 2, text)


def test_a_pickle_keeps_the_class():
    again = pickle.loads(pickle.dumps(Derived(EVERYTHING.commands)))
    assert type(again) is Derived and again.commands == EVERYTHING.commands


class Derived(QuillInput):
    pass
