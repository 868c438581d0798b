"""The inputs that fuzzing has found, and those it began with, go through Python."""

import hashlib
import json
import os
import pathlib
import subprocess
import tarfile

import pytest

import quill_inp
from quill_inp import LossError, QuillInput

ROOT = pathlib.Path(__file__).parents[2]


def packed_inputs():
    with tarfile.open(ROOT / "fuzz/corpus.tar.xz") as archive:
        return [archive.extractfile(member).read() for member in archive if member.isfile()]


def files_in(*folders):
    return [
        path.read_bytes()
        for folder in folders
        for path in sorted((ROOT / folder).iterdir())
        if path.is_file()
    ]


@pytest.fixture(scope="module")
def inputs():
    packed = packed_inputs()
    assert len(packed) > 500
    return packed + files_in("fuzz/seeds", "fuzz/findings", "examples/inputs")


def decoded(data):
    return data.decode("utf-8", "surrogateescape")


def encoded(text):
    return text.encode("utf-8", "surrogateescape")


def test_every_input_is_read_alike_by_each_function(inputs, tmp_path):
    path = tmp_path / "input.qin"
    for data in inputs:
        parsed = quill_inp.parse_lines(data)
        assert quill_inp.parse_string(data) == parsed.result
        assert quill_inp.parse_lines(decoded(data)) == parsed
        path.write_bytes(data)
        assert quill_inp.parse_file(path) == parsed.result


def test_the_lines_of_every_input_cover_it(inputs):
    for data in inputs:
        lines = quill_inp.lines(data)
        ends = [line.offset + line.length + line.terminator_length for line in lines]
        assert [line.offset for line in lines] == [0, *ends][:-1] if lines else data == b""
        assert ends[-1:] == [len(data)][: len(lines)]


def test_the_findings_of_every_input_are_in_it(inputs):
    for data in inputs:
        lines = len(quill_inp.lines(data))
        for finding in quill_inp.lint(data):
            assert 1 <= finding.line <= lines + 1 and finding.column >= 1 and finding.message


def test_every_input_is_the_same_after_a_way_through_a_dict(inputs):
    for data in inputs:
        document = quill_inp.parse_string(data).input
        again = QuillInput.from_dict(json.loads(json.dumps(document.to_dict())))
        assert repr(again) == repr(document)


def test_what_is_written_of_every_input_has_its_identity(inputs, tmp_path):
    written = 0
    for data in inputs:
        document = quill_inp.parse_string(data).input
        path = tmp_path / f"{written}.qin"
        try:
            quill_inp.write_file(path, document)
        except LossError:
            continue
        written += 1
        assert hashlib.sha256(path.read_bytes()).hexdigest() == document.sha256()
        assert quill_inp.parse_file(path).input.sha256() == document.sha256()
    assert written > len(inputs) // 2


def test_an_edit_that_changes_nothing_gives_the_same_bytes(inputs):
    for data in inputs:
        assert quill_inp.edit(data, allow_loss=True).text == data


def test_every_input_has_the_json_of_the_program(inputs, tmp_path):
    paths = [tmp_path / f"{number}.qin" for number in range(len(inputs))]
    for path, data in zip(paths, inputs):
        path.write_bytes(data)
    run = subprocess.run(
        [os.environ["QUILL_INP_PROGRAM"], "json", "-q", *paths], capture_output=True, check=True
    )
    printed = run.stdout.decode()
    for data in inputs:
        members, end = json.JSONDecoder().raw_decode(printed)
        printed = printed[end:].lstrip("\n")
        assert json.dumps(members) == json.dumps(quill_inp.parse_string(data).input.to_dict())
    assert printed == ""
