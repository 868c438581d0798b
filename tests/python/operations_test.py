"""The operations of the editor and the builder."""

import pytest

from quill_inp import (
    AtomRecord,
    CommandParameter,
    HeaderCommand,
    InputBuilder,
    InputEditor,
    PostCommand,
    PostCommandKind,
    QuillInput,
)

BOTH = [
    ("set_flag", ("sp",), "#sp\n"),
    ("set_assignment", ("grid", "fine"), "#grid = fine\n"),
    ("set_model", ("m1",), "#model = m1\n"),
    ("set_device", ("gpu0",), "#device = gpu0\n"),
    ("set_task", ("opt", [CommandParameter("a", "1"), CommandParameter("b")]), "#opt(a=1, b)\n"),
    ("set_task", ("opt",), "#opt\n"),
    ("add_command", (HeaderCommand("freq"),), "#freq\n"),
    ("set_charge_and_multiplicity", (-1, 2), "-1 2\n"),
    ("clear_charge_and_multiplicity", (), ""),
    ("set_geometry", ([AtomRecord("He")],), "He       0.000000      0.000000      0.000000\n"),
    ("set_xyz_files", (["a.xyz", "b.xyz"],), "XYZ a.xyz\nXYZ b.xyz\n"),
    ("set_xyz_file", ("a.xyz",), "XYZ a.xyz\n"),
    ("set_xyz_trajectory", ("a.xyz",), "XYZTRAJ a.xyz\n"),
    ("add_atom", (AtomRecord("He"),), "He       0.000000      0.000000      0.000000\n"),
    ("add_post_command", (PostCommand(raw_text="x y"),), "x y\n"),
    ("add_atom_constraint", (1,), "C 1\n"),
    ("add_bond_constraint", (1, 2), "B 1 2\n"),
    ("add_angle_constraint", (1, 2, 3), "A 1 2 3\n"),
    ("add_dihedral_constraint", (1, 2, 3, 4), "D 1 2 3 4\n"),
    ("add_scan", ((1, 2), 1.5, 10), "S 1 2 1.5 10\n"),
    ("set_post_file", ("p q.inp",), "POST p q.inp\n"),
]


@pytest.mark.parametrize("name, arguments, text", BOTH)
def test_an_operation_on_nothing(name, arguments, text):
    editor = InputEditor(QuillInput())
    assert getattr(editor, name)(*arguments) is None
    assert editor.to_string() == text
    builder = InputBuilder()
    assert getattr(builder, name)(*arguments) is builder
    assert builder.to_string() == text
    assert builder.document() == editor.document()


KEYWORDS = [
    ("set_assignment", {"name": "grid", "value": "fine"}),
    ("set_task", {"name": "opt", "parameters": [CommandParameter("b")]}),
    ("add_command", {"command": HeaderCommand("x")}),
    ("set_charge_and_multiplicity", {"charge": 1, "multiplicity": 2}),
    ("set_geometry", {"atoms": [AtomRecord("H")]}),
    ("set_xyz_files", {"files": ["a"]}),
    ("set_xyz_file", {"path": "a"}),
    ("add_atom", {"atom": AtomRecord("H")}),
    ("add_dihedral_constraint", {"a": 1, "b": 2, "c": 3, "d": 4}),
    ("add_scan", {"atoms": [1, 2], "value": 0.5, "steps": 3}),
]


@pytest.mark.parametrize("name, arguments", KEYWORDS)
def test_arguments_have_the_names_that_they_have_in_cpp(name, arguments):
    editor = InputEditor(input=QuillInput())
    getattr(editor, name)(**arguments)
    positional = InputEditor(QuillInput())
    getattr(positional, name)(*arguments.values())
    assert editor.document() == positional.document() != QuillInput()


@pytest.fixture
def editor(water):
    return InputEditor(water)


def test_an_editor_has_a_document_of_its_own(water, editor):
    before = repr(water)
    document = editor.document()
    editor.set_model("m2")
    assert repr(water) == before
    assert document.find_command("model").value == "m2"  # the editor's own
    document.upsert_command("freq")
    assert editor.has_command("freq")
    editor = None
    assert document.command_names() == ["opt", "model", "freq"]


def test_a_builder_gives_copies_of_its_document():
    builder = InputBuilder().set_flag("sp")
    document = builder.document()
    builder.set_model("m1")
    document.upsert_command("freq")
    assert document.command_names() == ["sp", "freq"]
    assert builder.to_string() == "#sp\n#model = m1\n"
    assert InputBuilder().set_task_parameter("opt", "a", "1").to_string() == "#opt(a=1)\n"


def test_the_editor_answers_what_the_document_says(editor):
    assert editor.has_command(" #OPT ") and not editor.has_command("freq")
    assert editor.has_task_command()
    assert editor.command_names() == ["opt", "model"]
    assert editor.model() == "small-organic" == editor.get_assignment("MODEL")
    assert editor.device() is None and editor.get_assignment("opt") is None
    assert editor.get_parameter("opt", " MaxIter ") == "50"
    assert editor.get_parameter("opt", "tight") is None
    assert editor.get_parameter("opt", "maxiter", occurrence=1) is None


def test_parameters_are_set_and_removed_by_occurrence(editor):
    editor.add_command(HeaderCommand("opt"))
    editor.set_parameter("opt", "maxiter", "7", occurrence=1)
    editor.set_parameter(command_name="opt", parameter_name="MAXITER", value="9")
    assert editor.command_names() == ["opt", "model", "opt"]
    assert str(editor.document().commands[0]) == "#opt(maxiter=9, tight)"
    assert str(editor.document().commands[2]) == "#opt(maxiter=7)"
    assert editor.remove_parameter("opt", "maxiter", 1) is True
    assert editor.remove_parameter("opt", "maxiter", 1) is False
    assert str(editor.document().commands[2]) == "#opt"


@pytest.mark.parametrize("owner", [lambda d: d, InputEditor])
def test_commands_are_removed_by_name_and_occurrence(water, owner):
    water.commands.append(water.commands[0])
    target = owner(water)
    assert target.remove_command("OPT", occurrence=2) is False
    assert target.remove_command("OPT", occurrence=1) is True
    assert target.command_names() == ["opt", "model"]
    assert target.remove_command("opt") is True
    assert target.remove_command("opt") is False
    assert target.command_names() == ["model"]


def test_a_document_finds_and_adds_commands(water):
    water.commands.append(HeaderCommand("OPT"))
    assert water.find_command("opt", occurrence=1).name == "OPT"
    assert water.find_command("opt", 2) is None
    assert water.has_command("Opt") and water.has_task_command()
    command = water.upsert_command(name="Freq")
    command.name = "irc"
    assert water.command_names() == ["opt", "model", "OPT", "irc"]
    assert water.upsert_command("OPT").kind == water.commands[0].kind


ALIASES = [
    lambda e, d: e.add_command(d.commands[0]),
    lambda e, d: e.set_task("opt", d.commands[0].parameters),
    lambda e, d: e.set_task("opt", [d.commands[0].parameters[1]]),
    lambda e, d: e.add_atom(d.geometry.atoms[0]),
    lambda e, d: e.set_geometry(d.geometry.atoms),
    lambda e, d: e.set_geometry(reversed(d.geometry.atoms)),
    lambda e, d: e.set_geometry(d.geometry.symbols, d.geometry.positions),
    lambda e, d: e.add_post_command(d.post_commands[0]),
    lambda e, d: e.add_scan(d.post_commands[0].atom_indices, 1.0, 2),
    lambda e, d: e.set_xyz_files(d.geometry.xyz_files),
]


@pytest.mark.parametrize("operation", ALIASES)
def test_an_argument_may_be_a_part_of_the_document(water, operation):
    aliased, separate = InputEditor(water), InputEditor(water)
    operation(aliased, aliased.document())
    operation(separate, water)
    assert repr(aliased.document()) == repr(separate.document())


REMOVALS = [
    (lambda d: d.geometry.atoms[0], lambda e: e.set_geometry([])),
    (lambda d: d.geometry.atoms[0], lambda e: e.set_xyz_files([])),
    (lambda d: d.geometry.atoms[0], lambda e: e.set_xyz_file("a")),
    (lambda d: d.geometry.atoms[0], lambda e: e.set_xyz_trajectory("a")),
    (lambda d: d.geometry.atoms[2], lambda e: e.set_geometry(["H"], [[0, 0, 0]])),
    (lambda d: d.commands[0], lambda e: e.remove_command("opt")),
    (lambda d: d.commands[1], lambda e: e.remove_command("opt")),
    (lambda d: d.commands[0].parameters[0], lambda e: e.remove_command("opt")),
    (lambda d: d.commands[0].parameters[1], lambda e: e.set_flag("opt")),
    (lambda d: d.commands[0].parameters[1], lambda e: e.set_assignment("opt", "x")),
    (lambda d: d.commands[0].parameters[1], lambda e: e.set_task("opt")),
    (lambda d: d.commands[0].parameters[1], lambda e: e.remove_parameter("opt", "maxiter")),
    (lambda d: d.post_commands[1], lambda e: e.clear_post_commands()),
]


@pytest.mark.parametrize("part_of, remove", REMOVALS)
def test_what_was_taken_before_a_removal_keeps_its_value(editor, part_of, remove):
    part = part_of(editor.document())
    before = repr(part)
    remove(editor)
    assert repr(part) == before


def test_an_atom_added_to_references_lets_unused_atoms_go(water):
    editor = InputEditor(water)
    document = editor.document()
    document.geometry.kind = type(document.geometry.kind).XYZ_FILE
    atom = document.geometry.atoms[0]
    editor.add_atom(AtomRecord("He"))
    assert document.geometry.symbols == ["He"]
    assert atom.symbol == "O"


def test_a_parameter_that_is_set_stays_a_part(editor):
    parameter = editor.document().commands[0].parameters[0]
    editor.set_parameter("opt", "maxiter", "7")
    assert parameter.value == "7"


def test_kinds_are_set_by_name(water):
    water.post_commands[0].kind = PostCommandKind.RAW
    water.post_commands[0].raw_text = "free text"
    assert str(water.post_commands[0]) == "free text"
