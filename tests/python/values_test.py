"""Documents and their parts are values: compared, copied, pickled and shown by their contents."""

import copy
import enum
import math
import pathlib
import pickle
import re

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
    LineRecord,
    LineRole,
    ParseResult,
    PostCommand,
    PostCommandKind,
    QuillInput,
    Severity,
)
from strategies import documents, values


def evaluate(expression):
    return eval(expression, {name: getattr(quill_inp, name) for name in quill_inp.__all__})


@given(values)
def test_every_copy_of_a_value_has_all_its_contents(value):
    for other in (
        copy.copy(value),
        copy.deepcopy(value),
        evaluate(repr(value)),
        # Protocol 0 writes numbers as text, without the sign of a NaN.
        *(pickle.loads(pickle.dumps(value, protocol)) for protocol in range(1, 6)),
    ):
        assert type(other) is type(value)
        assert other == value
        assert repr(other) == repr(value)  # tells numbers and unused members apart


@given(documents)
def test_a_document_is_the_value_of_its_parts(document):
    again = QuillInput(document.commands, document.geometry, document.post_commands)
    assert repr(again) == repr(document)
    assert str(again) == document.to_string()


CHANGES = [
    (CommandParameter("basis", ""), lambda p: setattr(p, "name", "b")),
    (CommandParameter("basis", ""), lambda p: setattr(p, "value", None)),
    (HeaderCommand("opt"), lambda c: setattr(c, "name", "Opt")),
    (HeaderCommand("opt"), lambda c: setattr(c, "kind", HeaderCommandKind.PARAMETER_LIST)),
    (HeaderCommand("opt"), lambda c: setattr(c, "value", "")),
    (HeaderCommand("opt"), lambda c: c.parameters.append(CommandParameter("tight"))),
    (AtomRecord("H"), lambda a: setattr(a, "symbol", "h")),
    (AtomRecord("H"), lambda a: setattr(a, "x", -0.0)),
    (AtomRecord("H"), lambda a: setattr(a, "y", math.nan)),
    (AtomRecord("H"), lambda a: setattr(a, "z", 1e-300)),
    (GeometryBlock(), lambda g: setattr(g, "kind", GeometryKind.ATOMS)),
    (GeometryBlock(), lambda g: setattr(g, "charge", -1)),
    (GeometryBlock(), lambda g: setattr(g, "multiplicity", 2)),
    (GeometryBlock(), lambda g: setattr(g, "has_charge_and_multiplicity", True)),
    (GeometryBlock(), lambda g: g.atoms.append(AtomRecord())),
    (GeometryBlock(), lambda g: g.xyz_files.append("")),
    (PostCommand(), lambda p: setattr(p, "kind", PostCommandKind.SCAN)),
    (PostCommand(), lambda p: p.atom_indices.append(1)),
    (PostCommand(), lambda p: setattr(p, "scan_value", 0.0)),
    (PostCommand(), lambda p: setattr(p, "scan_steps", 0)),
    (PostCommand(), lambda p: setattr(p, "post_file", "x")),
    (PostCommand(), lambda p: setattr(p, "raw_text", "x")),
    (QuillInput(), lambda d: d.upsert_command("sp")),
    (QuillInput(), lambda d: setattr(d.geometry, "charge", 1)),
    (QuillInput(), lambda d: d.post_commands.append(PostCommand())),
]


@pytest.mark.parametrize("value, change", CHANGES)
def test_a_changed_copy_differs_and_the_original_does_not_change(value, change):
    other = copy.deepcopy(value)
    before = repr(value)
    change(other)
    assert other != value
    assert repr(other) != before
    assert repr(value) == before


def test_the_text_of_a_line_counts_only_for_raw_text():
    built = PostCommand(PostCommandKind.BOND_CONSTRAINT, [1, 2])
    read = quill_inp.parse_string("#sp\n\nH 0 0 0\n\nb  1 2\n").input.post_commands[0]
    assert read.raw_text == "b  1 2"
    assert read == built


def test_values_of_other_classes_are_never_equal():
    assert AtomRecord() != CommandParameter()
    assert QuillInput() != ""
    assert QuillInput().commands == []
    assert QuillInput().commands != ()


@pytest.mark.parametrize("value", [QuillInput(), AtomRecord(), QuillInput().commands])
def test_what_can_change_has_no_hash(value):
    with pytest.raises(TypeError, match="unhashable"):
        hash(value)


STRINGS = [
    (CommandParameter("maxiter", "50"), "maxiter=50"),
    (CommandParameter("tight"), "tight"),
    (CommandParameter("basis", ""), "basis="),
    (HeaderCommand("opt", HeaderCommandKind.PARAMETER_LIST), "#opt()"),
    (HeaderCommand("model", HeaderCommandKind.ASSIGNMENT, "m1"), "#model = m1"),
    (AtomRecord("Cl", 1, -2.5, 1e-7), "Cl       1.000000     -2.500000      0.000000"),
    (GeometryBlock(charge=-1, has_charge_and_multiplicity=True), "-1 1\n"),
    (GeometryBlock(GeometryKind.XYZ_FILE, xyz_files=["a b", "c"]), "XYZ a b\nXYZ c\n"),
    (PostCommand(PostCommandKind.SCAN, [1, 2], 1.5, 10), "S 1 2 1.5 10"),
    (QuillInput(), ""),
    (QuillInput([HeaderCommand("sp")]), "#sp\n"),
]


@pytest.mark.parametrize("value, text", STRINGS)
def test_the_string_of_a_value_is_its_canonical_text(value, text):
    assert str(value) == text


NEW_VALUES = [
    (CommandParameter, "CommandParameter('', None)"),
    (HeaderCommand, "HeaderCommand('', HeaderCommandKind.FLAG, None, [])"),
    (AtomRecord, "AtomRecord('', 0.0, 0.0, 0.0)"),
    (GeometryBlock, "GeometryBlock(GeometryKind.NONE, 0, 1, False, [], [])"),
    (PostCommand, "PostCommand(PostCommandKind.RAW, [], None, None, '', '')"),
    (QuillInput, "QuillInput([], GeometryBlock(GeometryKind.NONE, 0, 1, False, [], []), [])"),
    (LineRecord, "LineRecord(LineRole.BLANK, None, 0, 0, 0)"),
]


@pytest.mark.parametrize("kind, expression", NEW_VALUES)
def test_a_new_value_has_the_members_that_it_has_in_cpp(kind, expression):
    assert repr(kind()) == expression


def test_results_are_values_too(water_text):
    result = quill_inp.parse_lines(water_text + "Q 1\n")
    for other in (copy.deepcopy(result), pickle.loads(pickle.dumps(result)), evaluate(repr(result))):
        assert other == result
        assert repr(other) == repr(result)
    assert result != quill_inp.parse_lines(water_text)
    assert ParseResult(QuillInput()) == ParseResult(QuillInput(), False, "", [])


ROOT = pathlib.Path(__file__).parents[2]
HEADERS = [
    ROOT / "include/kelp/input/quill/document.hpp",
    ROOT / "include/kelp/input/quill/lines.hpp",
    ROOT / "tools/lint/rule.hpp",
]


def enumerators_of(kind):
    """Returns the names that an enumeration has in C++, in their order, as they are in Python."""
    text = re.sub("//.*", "", "".join(path.read_text(encoding="utf-8") for path in HEADERS))
    (body,) = re.findall(rf"enum class {kind.__name__}\b[^{{]*{{([^}}]*)}}", text)
    names = re.findall(r"([A-Z]\w*)(?: = (\d+))?", body)
    assert all(number in ("", str(place)) for place, (_, number) in enumerate(names))
    return [re.sub("(?<=[a-z])(?=[A-Z])", "_", name).upper() for name, _ in names]


@pytest.mark.parametrize(
    "kind", [GeometryKind, HeaderCommandKind, LineRole, PostCommandKind, Severity]
)
def test_enumerations_have_the_names_and_numbers_of_cpp(kind):
    assert issubclass(kind, enum.Enum)
    assert list(kind.__members__) == enumerators_of(kind)
    assert [one.value for one in kind] == list(range(len(kind)))


REFUSED = [
    (lambda: AtomRecord(5), TypeError, "expected str, not int"),
    (lambda: AtomRecord(b"H"), TypeError, "expected str, not bytes"),
    (lambda: AtomRecord("H", "1.0"), TypeError, "expected float, not str"),
    (lambda: AtomRecord("H", None), TypeError, "must be real number, not NoneType"),
    (lambda: CommandParameter(None), TypeError, "expected str, not NoneType"),
    (lambda: CommandParameter("a", 3), TypeError, "expected str, not int"),
    (lambda: HeaderCommand("a", 0), TypeError, "expected HeaderCommandKind, not int"),
    (lambda: HeaderCommand("a", parameters=["b"]), TypeError, "expected CommandParameter, not str"),
    (lambda: GeometryBlock(charge=2**31), OverflowError, "2147483648 is not a 32-bit integer"),
    (lambda: GeometryBlock(charge=-(2**31) - 1), OverflowError, "-2147483649 is not a 32-bit"),
    (lambda: GeometryBlock(charge=2**70), OverflowError, "is not a 32-bit integer"),
    (lambda: GeometryBlock(charge=1.0), TypeError, "expected int, not float"),
    (lambda: GeometryBlock(xyz_files=[1]), TypeError, "expected str, bytes or os.PathLike"),
    (lambda: PostCommand(atom_indices=["1"]), TypeError, "expected int, not str"),
    (lambda: QuillInput([AtomRecord()]), TypeError, "expected HeaderCommand, not AtomRecord"),
    (lambda: QuillInput(geometry=QuillInput()), TypeError, "expected GeometryBlock, not QuillInput"),
    (lambda: QuillInput().find_command("a", -1), OverflowError, "-1 is not a number from 0"),
    (lambda: AtomRecord("\ud800"), UnicodeEncodeError, "surrogates not allowed"),
]


@pytest.mark.parametrize("call, error, message", REFUSED)
def test_what_does_not_fit_is_refused(call, error, message):
    with pytest.raises(error, match=message):
        call()


def test_the_smallest_and_largest_integers_fit():
    geometry = GeometryBlock(charge=-(2**31), multiplicity=2**31 - 1)
    assert (geometry.charge, geometry.multiplicity) == (-(2**31), 2**31 - 1)
