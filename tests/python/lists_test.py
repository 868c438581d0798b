"""Lists of documents are live, behave as lists, and leave nothing that dangles."""

import gc

import pytest
from hypothesis import given
from hypothesis import strategies as st

from quill_inp import (
    AtomRecord,
    CommandParameter,
    GeometryBlock,
    HeaderCommand,
    PostCommand,
    QuillInput,
)

# Each list: an owner, the list of an owner, and the value that a number stands for.
LISTS = {
    "commands": (QuillInput, lambda d: d.commands, lambda i: HeaderCommand(str(i))),
    "parameters": (HeaderCommand, lambda c: c.parameters, lambda i: CommandParameter(str(i))),
    "atoms": (GeometryBlock, lambda g: g.atoms, lambda i: AtomRecord("H", i)),
    "xyz_files": (GeometryBlock, lambda g: g.xyz_files, str),
    "post_commands": (QuillInput, lambda d: d.post_commands, lambda i: PostCommand(raw_text=str(i))),
    "atom_indices": (PostCommand, lambda p: p.atom_indices, lambda i: i),
}

indices = st.integers(-6, 6)
slices = st.builds(
    slice, st.none() | indices, st.none() | indices, st.sampled_from([None, 1, 2, -1, -2])
)
contents = st.lists(st.integers(0, 9), max_size=4)
actions = st.one_of(
    st.tuples(st.just("append"), st.integers(0, 9)),
    st.tuples(st.just("insert"), indices, st.integers(0, 9)),
    st.tuples(st.just("extend"), contents),
    st.tuples(st.just("pop"), indices),
    st.tuples(st.just("reverse")),
    st.tuples(st.just("clear")),
    st.tuples(st.just("set"), indices, st.integers(0, 9)),
    st.tuples(st.just("set_slice"), slices, contents),
    st.tuples(st.just("delete"), indices),
    st.tuples(st.just("delete_slice"), slices),
    st.tuples(st.just("swap"), indices, indices),
    st.tuples(st.just("remove"), st.integers(0, 9)),
    st.tuples(st.just("add_itself")),
    st.tuples(st.just("double_by_slice")),
)


def act(target, make, action):
    """Does the same to a list of a document and to a list; returns what came back or was raised."""
    name, *arguments = action
    try:
        if name in ("append", "remove"):
            return getattr(target, name)(make(arguments[0]))
        if name == "insert":
            return target.insert(arguments[0], make(arguments[1]))
        if name == "extend":
            return target.extend([make(i) for i in arguments[0]])
        if name in ("pop", "reverse", "clear"):
            return getattr(target, name)(*arguments)
        if name == "set":
            target[arguments[0]] = make(arguments[1])
        elif name == "set_slice":
            target[arguments[0]] = [make(i) for i in arguments[1]]
        elif name in ("delete", "delete_slice"):
            del target[arguments[0]]
        elif name == "swap":
            i, j = arguments
            target[i], target[j] = target[j], target[i]
        elif name == "add_itself":
            target.extend(target[:2])
        elif name == "double_by_slice":
            target[1:1] = target[:2]
    except (IndexError, ValueError) as error:
        return type(error)
    return None


@pytest.mark.parametrize("name", LISTS)
@given(contents, st.lists(actions, max_size=6))
def test_a_list_of_a_document_does_what_a_list_does(name, start, steps):
    make_owner, list_of, make = LISTS[name]
    owner = make_owner()
    list_of(owner).extend([make(i) for i in start])
    expected = [make(i) for i in start]
    held = list(list_of(owner))  # what was taken from it must never dangle
    for step in steps:
        assert act(list_of(owner), make, step) == act(expected, make, step)
        assert list_of(owner) == expected
        held.extend(list_of(owner))
    assert len(list_of(owner)) == len(expected)
    assert all(repr(one) for one in held)


@pytest.mark.parametrize("name", LISTS)
def test_an_index_past_the_end_is_an_index_error(name):
    make_owner, list_of, make = LISTS[name]
    owner = make_owner()
    list_of(owner).append(make(1))
    assert list_of(owner)[-1] == make(1)
    for index in (1, -2):
        with pytest.raises(IndexError):
            list_of(owner)[index]
    with pytest.raises(TypeError):
        list_of(owner)["0"]


def test_a_change_of_a_part_changes_the_document(water):
    water.commands[0].parameters[0].value = "7"
    water.geometry.atoms[1].x = 2.5
    water.post_commands[0].atom_indices[1] = 3
    water.geometry.charge = 1
    assert str(water) == (
        "#opt(maxiter=7, tight)\n"
        "#model = small-organic\n"
        "\n"
        "1 1\n"
        "O        0.000000      0.000000      0.117176\n"
        "H        2.500000      0.756950     -0.468706\n"
        "H        0.000000     -0.756950     -0.468706\n"
        "\n"
        "B 1 3\n"
        "S 1 3 1.5 10\n"
    )


def test_a_part_stays_a_part_while_its_list_grows(water):
    atom = water.geometry.atoms[0]
    command = water.commands[0]
    parameter = command.parameters[0]
    line = water.post_commands[0]
    for i in range(1000):
        water.geometry.atoms.append(AtomRecord("He"))
        water.upsert_command(f"c{i}")
        command.parameters.append(CommandParameter("p"))
        water.post_commands.append(PostCommand(raw_text="x"))
    atom.symbol = "S"
    command.name = "ts"
    parameter.value = "8"
    line.atom_indices.append(9)
    assert water.geometry.atoms[0].symbol == "S"
    assert water.commands[0].name == "ts"
    assert water.commands[0].parameters[0].value == "8"
    assert list(water.post_commands[0].atom_indices) == [1, 2, 9]


def test_what_is_taken_out_is_a_value_of_its_own(water):
    atom = water.geometry.atoms.pop(0)
    atom.x = 5.0
    assert atom == AtomRecord("O", 5.0, 0.0, 0.117176)
    assert water.geometry.symbols == ["H", "H"]

    command = water.commands[0]
    parameters = command.parameters
    water.remove_command("opt")
    parameters.append(CommandParameter("loose"))
    assert str(command) == "#opt(maxiter=50, tight, loose)"
    assert str(water.commands[0]) == "#model = small-organic"


def test_a_part_may_be_given_to_its_own_list(water):
    atoms = water.geometry.atoms
    atoms.append(atoms[0])
    atoms[0].x = 1.0
    assert [atom.x for atom in atoms] == [1.0, 0.0, 0.0, 0.0]
    atoms[:] = reversed(atoms)
    assert [atom.x for atom in atoms] == [0.0, 0.0, 0.0, 1.0]
    water.commands = water.commands
    assert water.command_names() == ["opt", "model"]
    water.commands += [HeaderCommand("sp")]
    assert water.command_names() == ["opt", "model", "sp"]


def test_an_assigned_list_or_geometry_is_copied(water):
    other = QuillInput()
    other.geometry = water.geometry
    other.commands = water.commands
    other.geometry.atoms[0].symbol = "S"
    other.commands[0].name = "ts"
    assert water.geometry.symbols == ["O", "H", "H"]
    assert water.command_names() == ["opt", "model"]
    assert other.command_names() == ["ts", "model"]
    water.geometry = water.geometry
    assert water.geometry.symbols == ["O", "H", "H"]


def test_a_geometry_that_is_replaced_lets_its_atoms_go(water):
    atom = water.geometry.atoms[0]
    geometry = water.geometry
    water.geometry = GeometryBlock()
    assert atom.symbol == "O"
    assert geometry == GeometryBlock()  # still that of the document
    atom.symbol = "S"
    assert len(water.geometry.atoms) == 0


def test_a_part_keeps_its_document_alive():
    atom = QuillInput(geometry=GeometryBlock(atoms=[AtomRecord("H", 1.0)])).geometry.atoms[0]
    lists = HeaderCommand("opt", parameters=[CommandParameter("tight")]).parameters
    gc.collect()
    assert atom == AtomRecord("H", 1.0)
    assert lists == [CommandParameter("tight")]


def test_a_failed_assignment_changes_nothing(water):
    before = repr(water)
    with pytest.raises(TypeError):
        water.geometry.atoms[:] = [AtomRecord("He"), "He"]
    with pytest.raises(TypeError):
        water.post_commands[0].atom_indices = [1, None]
    with pytest.raises(OverflowError):
        water.post_commands[0].atom_indices.extend([5, 2**31])
    assert repr(water) == before
