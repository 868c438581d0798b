"""How a document shows itself in a notebook."""

import xml.etree.ElementTree

from hypothesis import given

import quill_inp
from quill_inp import AtomRecord, QuillInput
from strategies import documents


def shown(document):
    """Returns the text that a browser shows; every tag is closed, and nothing else is one."""
    text = document._repr_html_()
    without_controls = "".join(c if c >= " " or c in "\n\t" else "?" for c in text)
    plain = without_controls.replace("\ufffe", "?").replace("\uffff", "?")
    return "".join(xml.etree.ElementTree.fromstring(plain).itertext())


def test_a_document_shows_a_summary_and_its_text(water, water_text):
    assert shown(water) == (
        "QuillInput: 2 commands, charge 0, multiplicity 1, 3 atoms, 0 referenced files, "
        "2 post-processing lines" + water_text.rstrip("\n")
    )
    assert '<span style="color:#2a7ab0" title="COMMAND">#opt(' in water._repr_html_()


def test_warnings_are_beside_their_lines():
    document = quill_inp.parse_string("#sp\n\nHx 0 0 0\n").input
    line = next(line for line in shown(document).splitlines() if line.startswith("Hx"))
    assert line.endswith("0.000000  \u26a0 unknown element symbol 'Hx'")
    assert shown(QuillInput()).endswith("\u26a0 No QUILL coordinate section found")


def test_text_is_never_markup(water):
    water.commands[0].name = '<script>"&'
    assert "<script>" not in water._repr_html_()
    assert '#<script>"&' in shown(water)


def test_a_long_document_is_cut(water):
    water.geometry.atoms.extend([AtomRecord("He")] * 1000)
    assert len(shown(water).splitlines()) == 201
    assert shown(water).endswith("... and 810 more lines")


@given(documents)
def test_every_document_is_shown(document):
    assert shown(document).startswith("QuillInput: ")
