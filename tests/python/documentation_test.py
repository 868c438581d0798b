"""The code blocks of the pages are run, and print what the pages show."""

import contextlib
import io
import pathlib
import re

import pytest

ROOT = pathlib.Path(__file__).parents[2]
BLOCK = re.compile(r"^```python\n(.*?)^```\n(?:\n```text\n(.*?)^```\n)?", re.MULTILINE | re.DOTALL)


SECTION = re.compile(r"^## Other packages\n.*?(?=^## )", re.MULTILINE | re.DOTALL)


def blocks_of(text):
    """Returns each block of Python and what the page shows of its output."""
    return BLOCK.findall(text)


def neighbours_section(text):
    """Returns the section that needs packages which not everybody has; neighbours/ tests it."""
    (section,) = SECTION.findall(text)
    return section


def printed_by(code, names):
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed):
        exec(compile(code, "block", "exec"), names)
    return printed.getvalue()


@pytest.mark.parametrize("page", ["README.md", "docs/python.md"])
def test_the_blocks_of_a_page_print_what_it_shows(page, monkeypatch):
    monkeypatch.chdir(ROOT)
    blocks = blocks_of(SECTION.sub("", (ROOT / page).read_text(encoding="utf-8")))
    assert blocks
    names = {}
    for code, shown in blocks:
        printed = printed_by(code, names)
        assert printed == shown or not shown


def test_the_example_of_the_package_runs(tmp_path, monkeypatch, water_text):
    import quill_inp

    (tmp_path / "water.qin").write_text(water_text)
    monkeypatch.chdir(tmp_path)
    example = "\n".join(
        line[4:] for line in quill_inp.__doc__.splitlines() if line.startswith("    ")
    )
    printed = io.StringIO()
    with contextlib.redirect_stdout(printed):
        exec(example, {})
    assert printed.getvalue().endswith("S 1 3 1.5 10\n\n")
