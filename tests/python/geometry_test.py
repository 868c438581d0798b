"""Atoms as arrays."""

import subprocess
import sys

import numpy
import pytest

import quill_inp
from quill_inp import AtomRecord, GeometryBlock, InputBuilder, InputEditor, QuillInput


def test_positions_are_an_array_of_their_own(water):
    positions = water.geometry.positions
    assert positions.dtype == numpy.float64 and positions.shape == (3, 3)
    assert positions.tolist() == [
        [0.0, 0.0, 0.117176],
        [0.0, 0.75695, -0.468706],
        [0.0, -0.75695, -0.468706],
    ]
    positions[0, 0] = 9.0
    assert water.geometry.atoms[0].x == 0.0
    water.geometry.atoms.clear()
    assert positions[1, 1] == 0.75695


def test_an_array_outlives_its_document():
    positions = quill_inp.parse_string("#sp\n\nH 1 2 3\n").input.geometry.positions
    assert positions.tolist() == [[1.0, 2.0, 3.0]]


def test_no_atoms_give_empty_arrays():
    geometry = GeometryBlock()
    assert geometry.positions.shape == (0, 3)
    assert geometry.numbers.shape == (0,)
    assert geometry.symbols == []


def test_numbers_are_those_of_elements_as_the_reader_spells_them():
    symbols = ["H", "Og", "cl", "CL", "Xx", "D", "", "H "]
    geometry = GeometryBlock(atoms=[AtomRecord(symbol) for symbol in symbols])
    assert geometry.numbers.dtype == numpy.int64
    assert geometry.numbers.tolist() == [1, 118, 17, 17, 0, 0, 0, 0]
    assert geometry.symbols == symbols


ARRAYS = [
    [[0, 0, 0], [0, 0, 0.74]],
    ((0, 0, 0), (0, 0, 0.74)),
    numpy.array([[0, 0, 0], [0, 0, 0.74]]),
    numpy.array([[0, 0, 0], [0, 0, 0.74]], dtype=">f8"),
    numpy.asfortranarray([[0, 0, 0], [0, 0, 0.74]]),
    numpy.array([[0, 0, 9, 0], [0, 0, 9, 0.74]])[:, [0, 1, 3]],
    numpy.array([[0, 0, 0.74], [0, 0, 0]])[::-1],
]


@pytest.mark.parametrize("positions", ARRAYS)
def test_any_array_like_of_three_columns_is_taken(positions):
    editor = InputEditor(QuillInput())
    editor.set_geometry(["H", "h"], positions)
    built = InputBuilder().set_geometry(symbols=("H", "h"), positions=positions).document()
    assert editor.document() == built
    assert built.geometry.positions.tolist() == [[0, 0, 0], [0, 0, 0.74]]
    assert built.geometry.symbols == ["H", "h"]
    assert built.geometry.kind == quill_inp.GeometryKind.ATOMS


def test_single_precision_and_integers_are_converted():
    document = InputBuilder().set_geometry(["H"], numpy.float32([[0.1, 0, 0]])).document()
    assert document.geometry.atoms[0].x == float(numpy.float32(0.1))
    document = InputBuilder().set_geometry(["H"], [[1, 2, 3]]).document()
    assert document.geometry.positions.tolist() == [[1.0, 2.0, 3.0]]


def test_no_atoms_may_be_set():
    for empty in ([], numpy.zeros((0, 3))):
        assert len(InputBuilder().set_geometry([], empty).document().geometry.atoms) == 0
    assert len(InputBuilder().set_geometry([]).document().geometry.atoms) == 0


WRONG = [
    (["H"], [0, 0, 0], r"shape \(3,\) and dtype int64; expected numbers of shape \(1, 3\)"),
    (["H"], [[0.0, 0.0]], r"shape \(1, 2\) and dtype float64; .* \(1, 3\)"),
    (["H", "H"], [[0.0, 0.0, 0.0]], r"shape \(1, 3\) and dtype float64; .* \(2, 3\)"),
    (["H"], [["0", "0", "0"]], r"shape \(1, 3\) and dtype <U1"),
    (["H"], [[0j, 0, 0]], r"shape \(1, 3\) and dtype complex128"),
    (["H"], [[True, False, True]], r"shape \(1, 3\) and dtype bool"),
    (["H"], None, "expected AtomRecord, not str"),
]


@pytest.mark.parametrize("symbols, positions, message", WRONG)
def test_an_array_that_does_not_fit_is_refused_with_its_shape_and_dtype(
    water, symbols, positions, message
):
    editor = InputEditor(water)
    with pytest.raises((ValueError, TypeError), match=message):
        editor.set_geometry(symbols, positions)
    assert repr(editor.document()) == repr(water)


def test_atoms_and_symbols_exclude_each_other():
    editor = InputEditor(QuillInput())
    for arguments in ({}, {"atoms": [], "symbols": []}, {"symbols": ["H"]}):
        with pytest.raises(TypeError):
            editor.set_geometry(**arguments)


def test_numpy_is_imported_only_when_an_array_is_asked_for():
    program = """
import sys, quill_inp
document = quill_inp.parse_string("#sp\\n\\nH 0 0 0\\n").input
document.geometry.symbols, str(document), quill_inp.lint("x")
assert "numpy" not in sys.modules
document.geometry.positions
assert "numpy" in sys.modules
"""
    subprocess.run([sys.executable, "-c", program], check=True)
