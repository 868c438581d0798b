"""Any bytes survive, both ways."""

import pytest
from hypothesis import given
from hypothesis import strategies as st

import quill_inp
from quill_inp import AtomRecord, CommandParameter, HeaderCommand, QuillInput

any_bytes = st.binary(max_size=200)
lines_of_inputs = st.lists(
    st.sampled_from(
        [b"#opt(a=1, b)", b"#model = m", b"0 1", b"H 0 0 0", b"XYZ a.xyz", b"C 1", b"S 1 2 1 1", b""]
    )
    | st.binary(max_size=12),
    max_size=10,
).map(b"\n".join)


def decoded(data):
    return data.decode("utf-8", "surrogateescape")


def encoded(text):
    return text.encode("utf-8", "surrogateescape")


@given(any_bytes)
def test_bytes_are_stored_and_given_back_as_they_are(data):
    parameter = CommandParameter(decoded(data), decoded(data))
    assert encoded(parameter.name) == data
    assert encoded(parameter.value) == data
    assert encoded(str(HeaderCommand(decoded(data)))) == b"#" + data


@given(any_bytes | lines_of_inputs)
def test_a_text_and_its_bytes_are_read_alike(data):
    from_bytes = quill_inp.parse_lines(data)
    assert quill_inp.parse_lines(decoded(data)) == from_bytes
    assert quill_inp.parse_lines(bytearray(data)) == from_bytes
    assert quill_inp.parse_lines(memoryview(data)) == from_bytes
    assert quill_inp.parse_string(data) == from_bytes.result


@given(any_bytes | lines_of_inputs)
def test_every_text_is_read_and_its_lines_cover_it(data):
    at = 0
    for line in quill_inp.lines(data):
        assert line.offset == at
        at += line.length + line.terminator_length
    assert at == len(data)


@given(any_bytes | lines_of_inputs)
def test_no_text_makes_the_linter_fail(data):
    for finding in quill_inp.lint(data):
        assert finding.line >= 1 and finding.column >= 1 and finding.message


@given(lines_of_inputs)
def test_what_is_written_of_what_was_read_is_written_so_again(data):
    text = quill_inp.parse_string(data).input.to_string()
    assert isinstance(text, str)
    assert encoded(text) == encoded(QuillInput(*vars_of(quill_inp.parse_string(data).input)).to_string())


def vars_of(document):
    return document.commands, document.geometry, document.post_commands


def test_text_beyond_the_basic_plane_and_nul_survive():
    atom = AtomRecord("Å\U0001f9ea\0x")
    assert atom.symbol == "Å\U0001f9ea\0x"


@pytest.mark.parametrize("text", [None, 5, ["#sp"]])
def test_only_texts_are_read(text):
    with pytest.raises(TypeError, match="expected str or bytes, not "):
        quill_inp.parse_string(text)
