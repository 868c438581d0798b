"""Reading files and texts, and what is told about them."""

import os
import pathlib
import warnings

import pytest

import quill_inp
from quill_inp import InputWarning, LineRecord, LineRole, QuillInput


@pytest.fixture
def water_path(tmp_path, water_text):
    path = tmp_path / "wäter.qin"
    path.write_text(water_text, encoding="utf-8")
    return path


@pytest.mark.parametrize("form", [pathlib.Path, str, os.fsencode])
def test_a_path_may_have_every_form_that_open_takes(water_path, water, form):
    assert quill_inp.read(form(water_path)) == water
    result = quill_inp.parse_file(form(water_path))
    assert (result.ok, result.error, result.warnings) == (True, "", [])
    assert repr(result.input) == repr(water)


def test_read_raises_what_open_raises(tmp_path):
    with pytest.raises(FileNotFoundError) as caught:
        quill_inp.read(tmp_path / "none.qin")
    assert os.fspath(caught.value.filename) == os.fspath(tmp_path / "none.qin")
    with pytest.raises(IsADirectoryError):
        quill_inp.read(tmp_path)
    with pytest.raises(NotADirectoryError):
        (tmp_path / "file").touch()
        quill_inp.read(tmp_path / "file" / "x.qin")


def test_a_file_that_may_not_be_read_is_a_permission_error(water_path):
    water_path.chmod(0)
    user = os.geteuid()
    if user == 0:
        os.seteuid(65534)  # root may read every file
    try:
        with pytest.raises(PermissionError):
            quill_inp.read(water_path)
    finally:
        os.seteuid(user)


def test_parse_file_tells_of_a_file_that_cannot_be_opened(tmp_path):
    path = os.fsencode(tmp_path) + b"/\xff.qin"
    result = quill_inp.parse_file(path)
    assert result.input == QuillInput()
    assert not result.ok
    assert os.fsencode(result.error) == b"Failed to open QUILL input file: " + path
    assert result.warnings == []


PROBLEMS = "#\n#opt\n\nHx 0 0 0\n\nB 1 x\n"


def test_warnings_have_a_line_and_a_message():
    result = quill_inp.parse_string(PROBLEMS)
    assert result.warnings == [
        InputWarning(1, "empty QUILL header command"),
        InputWarning(4, "unknown element symbol 'Hx'"),
        InputWarning(6, "ignored unrecognized QUILL post-processing line"),
    ]
    assert [(w.line, w.message) for w in result.warnings][0] == (1, "empty QUILL header command")
    assert str(result.warnings[0]) == "Line 1: empty QUILL header command"
    no_line = quill_inp.parse_string("#opt\n").warnings
    assert no_line == [InputWarning(None, "No QUILL coordinate section found")]
    assert str(no_line[0]) == "No QUILL coordinate section found"
    assert len({*no_line, InputWarning(None, "No QUILL coordinate section found")}) == 1
    assert no_line[0] != InputWarning(1, "No QUILL coordinate section found")


@pytest.mark.parametrize("text", [PROBLEMS, PROBLEMS.encode()])
def test_loads_issues_each_problem_as_a_warning(text):
    with pytest.warns(InputWarning) as issued:
        document = quill_inp.loads(text)
    assert document == quill_inp.parse_string(PROBLEMS).input
    assert [one.message for one in issued] == quill_inp.parse_string(PROBLEMS).warnings
    assert {one.filename for one in issued} == {__file__}


def test_read_issues_warnings_for_the_line_that_calls_it(tmp_path):
    (tmp_path / "a.qin").write_text("#opt\n")
    with pytest.warns(InputWarning) as issued:
        quill_inp.read(tmp_path / "a.qin")
    assert [one.filename for one in issued] == [__file__]


def test_warnings_can_be_made_errors(water_text):
    with warnings.catch_warnings():
        warnings.simplefilter("error", InputWarning)
        quill_inp.loads(water_text)
        with pytest.raises(InputWarning, match="empty QUILL header command"):
            quill_inp.loads(PROBLEMS)


def test_every_line_has_a_record():
    text = "#opt\r\n\n0 1\nH 0 0 0\n\nC 1\nB 1 x\nü"
    assert quill_inp.lines(text) == [
        LineRecord(LineRole.COMMAND, 0, 0, 4, 2),
        LineRecord(LineRole.BLANK, None, 6, 0, 1),
        LineRecord(LineRole.CHARGE_AND_MULTIPLICITY, None, 7, 3, 1),
        LineRecord(LineRole.ATOM, 0, 11, 7, 1),
        LineRecord(LineRole.BLANK, None, 19, 0, 1),
        LineRecord(LineRole.POST_COMMAND, 0, 20, 3, 1),
        LineRecord(LineRole.DROPPED, None, 24, 5, 1),
        LineRecord(LineRole.POST_COMMAND, 1, 30, 2, 0),
    ]
    parsed = quill_inp.parse_lines(text)
    assert parsed.lines == quill_inp.lines(text)
    assert parsed.result == quill_inp.parse_string(text)


@pytest.mark.parametrize(
    "text, role",
    [("XYZ a.xyz", LineRole.XYZ_REFERENCE), ("XYZTRAJ a.xyz", LineRole.TRAJECTORY)],
)
def test_references_have_roles_of_their_own(text, role):
    assert quill_inp.lines(text)[0] == LineRecord(role, 0, 0, len(text), 0)


def test_a_document_is_written_into_a_file(tmp_path, water, water_text):
    for writer in (water, quill_inp.InputEditor(water)):
        path = tmp_path / "out.qin"
        writer.write_file(path)
        assert path.read_text() == water_text
        path.unlink()
    quill_inp.InputBuilder().set_flag("sp").write_file(path)
    assert path.read_text() == "#sp\n"


def test_a_file_that_cannot_be_opened_for_writing_is_an_error(tmp_path, water):
    path = os.fsencode(tmp_path) + b"/\xff/x.qin"
    with pytest.raises(OSError) as caught:
        water.write_file(path)
    assert os.fsencode(str(caught.value)) == b"Failed to open QUILL input for writing: " + path
