"""A use of the package in which mypy must find no doubt."""

import pathlib

import numpy
from numpy.typing import NDArray

import quill_inp


def constrain(path: pathlib.Path, first: int, second: int) -> str:
    editor = quill_inp.InputEditor(quill_inp.read(path))
    editor.add_bond_constraint(first, second)
    parameter: str | None = editor.get_parameter("opt", "maxiter")
    editor.set_parameter("opt", "maxiter", parameter or "50")
    return editor.to_string()


def centre(document: quill_inp.QuillInput) -> NDArray[numpy.float64]:
    positions: NDArray[numpy.float64] = document.geometry.positions
    positions -= positions.mean(axis=0)
    return positions


def move(document: quill_inp.QuillInput, shift: float) -> list[str]:
    for atom in document.geometry.atoms:
        atom.x += shift
    document.geometry.atoms.append(quill_inp.AtomRecord("H"))
    document.commands[:] = [quill_inp.HeaderCommand("sp")]
    return [finding.message for finding in quill_inp.lint(str(document))]


def build() -> quill_inp.QuillInput:
    return (
        quill_inp.InputBuilder()
        .set_task("opt", [quill_inp.CommandParameter("maxiter", "50")])
        .set_geometry(["H", "H"], [[0.0, 0.0, 0.0], [0.0, 0.0, 0.74]])
        .document()
    )
