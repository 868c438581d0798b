"""Findings of the linter."""

import pytest

import quill_inp
from quill_inp import Finding, Severity

TEXT = "#opt\n\n0 1\nHe 0 0 0\nHx 0 1 2\n#sp\n"


def test_a_finding_has_code_severity_place_and_words():
    assert quill_inp.lint(TEXT) == [
        Finding(
            code="QL112",
            severity=Severity.WARNING,
            line=5,
            column=1,
            message="unknown element symbol 'Hx'",
            advice="write the symbol of an element",
        ),
        Finding(
            code="QL107",
            severity=Severity.ERROR,
            line=6,
            column=1,
            message="the header is over, so '#sp' is kept as raw text",
            advice="move the line before charge, multiplicity and coordinates",
        ),
    ]


def test_a_text_without_doubts_has_no_finding(water_text):
    assert quill_inp.lint(water_text) == []


def test_rules_are_selected_and_ignored_by_code_or_group():
    codes = {one.code for one in quill_inp.lint(TEXT)}
    assert {one.code for one in quill_inp.lint(TEXT, select=["ql112"])} == {"QL112"}
    assert {one.code for one in quill_inp.lint(TEXT, ignore=["QL112"])} == codes - {"QL112"}
    with pytest.raises(ValueError, match="'QL9' is neither the code of a rule nor a group"):
        quill_inp.lint(TEXT, ignore=["QL9"])


def test_commands_of_the_project_are_known():
    text = "#sp\n#modell = x\n\n0 1\nHe 0 0 0\n"
    unknown = quill_inp.lint(text)
    assert [one.line for one in unknown] == [2]
    assert quill_inp.lint(text, known_commands=["modell"]) == []


def test_columns_count_bytes():
    findings = quill_inp.lint("#sp\n\n0 1\nHe 0 0 0\n\nä\u00a0b\n")
    assert [(one.line, one.column) for one in findings] == [(6, 3)]
