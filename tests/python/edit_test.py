"""Edits of a text that change only the lines that have to change."""

import pytest
from hypothesis import given
from hypothesis import strategies as st

import quill_inp
from quill_inp import (
    AtomRecord,
    CommandParameter,
    HeaderCommand,
    InputEditor,
    LossError,
    PostCommand,
)

TEXT = """\
  #Opt( maxiter = 50 , tight )
#model   =  "small organic"
#grid = fine ! the default

 0   1
O 0  0 0.1
h 0 .75 -.4


C  1
free   text
"""


@pytest.fixture
def lines():
    return TEXT.splitlines(keepends=True)


CHANGES = [
    (lambda e: None, {}),
    (lambda e: e.set_parameter("opt", "maxiter", "50"), {}),
    (lambda e: e.set_parameter("opt", "maxiter", "7"), {0: "#Opt(maxiter=7, tight)\n"}),
    (lambda e: e.remove_parameter("opt", "maxiter"), {0: "#Opt(tight)\n"}),
    (lambda e: e.set_model("m2"), {1: "#model = m2\n"}),
    (lambda e: e.set_assignment("model", "a, b"), {1: "#model = a, b\n"}),
    (lambda e: e.set_flag("opt"), {0: "#Opt\n"}),
    (lambda e: e.set_task("opt", [CommandParameter("a")]), {0: "#Opt(a)\n"}),
    (lambda e: e.remove_command("opt"), {0: ""}),
    (lambda e: e.add_command(HeaderCommand("freq")), {2: "#grid = fine ! the default\n#freq\n"}),
    (lambda e: e.set_device("gpu0"), {2: "#grid = fine ! the default\n#device = gpu0\n"}),
    (lambda e: e.set_charge_and_multiplicity(1, 2), {4: "1 2\n"}),
    (lambda e: e.clear_charge_and_multiplicity(), {4: ""}),
    (
        lambda e: e.add_atom(AtomRecord("He", 1)),
        {6: "h 0 .75 -.4\nHe       1.000000      0.000000      0.000000\n"},
    ),
    (
        lambda e: e.set_geometry(["O", "H"], [[0, 0, 0.1], [0, 0.8, -0.4]]),
        {6: "H        0.000000      0.800000     -0.400000\n"},
    ),
    (lambda e: e.set_xyz_file("a.xyz"), {5: "XYZ a.xyz\n", 6: ""}),
    (lambda e: e.set_xyz_files(["a", "b"]), {5: "XYZ a\n", 6: "XYZ b\n"}),
    (lambda e: e.set_xyz_trajectory("a.xyz"), {5: "XYZTRAJ a.xyz\n", 6: ""}),
    (lambda e: e.add_atom_constraint(2), {10: "free   text\nC 2\n"}),
    (lambda e: e.add_bond_constraint(1, 2), {10: "free   text\nB 1 2\n"}),
    (lambda e: e.add_angle_constraint(1, 2, 3), {10: "free   text\nA 1 2 3\n"}),
    (lambda e: e.add_dihedral_constraint(1, 2, 3, 4), {10: "free   text\nD 1 2 3 4\n"}),
    (lambda e: e.add_scan([1, 2], 1.5, 3), {10: "free   text\nS 1 2 1.5 3\n"}),
    (lambda e: e.set_post_file("p"), {10: "free   text\nPOST p\n"}),
    (lambda e: e.add_post_command(PostCommand(raw_text="x")), {10: "free   text\nx\n"}),
]


@pytest.mark.parametrize("operation, changed", CHANGES)
def test_only_the_lines_that_have_to_change_are_changed(lines, operation, changed):
    with quill_inp.edit(TEXT) as editor:
        operation(editor)
    assert editor.text == "".join(changed.get(i, line) for i, line in enumerate(lines))
    assert quill_inp.parse_string(editor.text).input == editor.document()


def test_every_post_processing_line_can_be_removed():
    editor = quill_inp.edit(TEXT)
    editor.add_bond_constraint(1, 2)
    editor.clear_post_commands()
    editor.add_bond_constraint(3, 4)
    assert editor.text == TEXT[: TEXT.index("C  1")] + "B 3 4\n"
    editor.clear_post_commands()
    assert quill_inp.parse_string(editor.text).input.post_commands == []


@pytest.mark.parametrize("text", [TEXT, TEXT.encode()])
def test_the_new_text_is_of_the_kind_of_the_old_one(text):
    assert quill_inp.edit(text).text == text
    assert type(quill_inp.edit(text).text) is type(text)


def test_bytes_and_line_ends_stay():
    data = b"#sp\r\n#t = caf\xe9\r\n\r\n0 1\r\nHe 0 0 0"
    with quill_inp.edit(data) as editor:
        editor.set_flag("freq")
    assert editor.text == b"#sp\r\n#t = caf\xe9\r\n#freq\r\n\r\n0 1\r\nHe 0 0 0"


def test_the_editor_of_a_text_answers_as_the_other_one():
    editor = quill_inp.edit(TEXT)
    editor.set_parameter("opt", "maxiter", "9")
    assert editor.has_command("OPT") and editor.has_task_command()
    assert editor.command_names() == ["Opt", "model", "grid"]
    assert (editor.model(), editor.device()) == ("small organic", None)
    assert editor.get_assignment("grid") == "fine ! the default"
    assert editor.get_parameter("opt", "maxiter") == "9"
    document = editor.document()
    document.commands.clear()
    assert editor.has_command("opt")


REFUSED = [
    (
        "#sp\n\nH 0 0 0\n",
        lambda e: e.add_angle_constraint(1, 2, 3),
        5,
        "line 5 would be read as an atom of element A, not as an angle constraint",
    ),
    (
        "#sp\n\nH 0 0 0\n",
        lambda e: e.add_post_command(PostCommand(raw_text="two\nlines")),
        5,
        "line 5",
    ),
    (
        "#sp\n#opt(a) rest\n\nH 0 0 0\n",
        lambda e: e.set_flag("opt"),
        2,
        "line 2 says more than its command, and the rest would be lost: '#opt(a) rest'",
    ),
    ("#sp\n", lambda e: e.set_model("a\nb"), None, "contains a line break"),
    ("\xef\xbb\xbf#sp\n", lambda e: None, None, "does not look like a QUILL input"),
    ("int main() {}\n", lambda e: e.set_flag("sp"), None, "does not look like a QUILL input"),
]


@pytest.mark.parametrize("text, operation, line, reason", REFUSED)
def test_an_edit_that_would_lose_something_is_refused(text, operation, line, reason):
    editor = quill_inp.edit(text)
    with pytest.raises(LossError) as caught:
        with editor:
            operation(editor)
    assert reason in caught.value.reason == str(caught.value)
    assert line is None or caught.value.line == line
    with pytest.raises(LossError):
        editor.text


def test_a_loss_can_be_allowed():
    with quill_inp.edit("#opt(a) rest\n", allow_loss=True) as editor:
        editor.set_flag("opt")
    assert editor.text == "#opt\n"


def test_small_changes_of_numbers_can_be_refused():
    atoms = [AtomRecord("He", 0.0000001)]
    with quill_inp.edit("#sp\n\nHe 0 0 0\n") as editor:
        editor.set_geometry(atoms)
    with pytest.raises(LossError, match="line 3"):
        with quill_inp.edit("#sp\n\nHe 0 0 0\n", max_change=0.0) as editor:
            editor.set_geometry(atoms)


def test_an_error_in_the_block_is_not_hidden():
    with pytest.raises(KeyError):
        with quill_inp.edit("\0") as editor:
            raise KeyError


OPERATIONS = st.sampled_from(
    [
        lambda e: e.set_flag("sp"),
        lambda e: e.set_assignment("model", "m 1"),
        lambda e: e.set_task("opt", [CommandParameter("a", "1, 2")]),
        lambda e: e.set_parameter("opt", "maxiter", "7"),
        lambda e: e.set_parameter("opt", "maxiter", "7", 1),
        lambda e: e.remove_parameter("opt", "maxiter"),
        lambda e: e.remove_command("opt"),
        lambda e: e.remove_command("opt", 1),
        lambda e: e.add_command(HeaderCommand("opt")),
        lambda e: e.set_charge_and_multiplicity(-1, 2),
        lambda e: e.clear_charge_and_multiplicity(),
        lambda e: e.add_atom(AtomRecord("He", 0.5)),
        lambda e: e.set_geometry([AtomRecord("H"), AtomRecord("O")]),
        lambda e: e.set_xyz_files(["a.xyz", "b.xyz"]),
        lambda e: e.set_xyz_trajectory("t.xyz"),
        lambda e: e.add_bond_constraint(1, 2),
        lambda e: e.add_scan((1, 2, 3), 0.5, 4),
        lambda e: e.clear_post_commands(),
    ]
)
LINES = st.sampled_from(
    ["#opt(maxiter=5)", "#opt", "#model = x", "", "0 1", "H 0 0 0", "O 1 2 3", "C 1", "free text"]
)


@given(st.lists(LINES, max_size=8), st.lists(OPERATIONS, max_size=6))
def test_an_edited_text_says_what_the_editor_says(lines, operations):
    text = "\n".join(lines)
    editor = InputEditor(quill_inp.parse_string(text).input)
    try:
        with quill_inp.edit(text) as edited:
            for operation in operations:
                operation(edited)
                operation(editor)
    except LossError:
        assert repr(edited.document()) == repr(editor.document())
        return
    assert repr(edited.document()) == repr(editor.document())
    assert quill_inp.parse_string(edited.text).input == editor.document()
