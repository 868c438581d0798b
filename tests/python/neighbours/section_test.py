"""The section of the page that needs other packages prints what it shows."""

import pathlib

from documentation_test import ROOT, blocks_of, neighbours_section, printed_by


def test_the_blocks_of_the_section_print_what_it_shows(tmp_path, monkeypatch):
    (tmp_path / "examples").symlink_to(ROOT / "examples")
    monkeypatch.chdir(tmp_path)
    page = (ROOT / "docs/python.md").read_text(encoding="utf-8")
    blocks = blocks_of(neighbours_section(page))
    assert len(blocks) == 5
    names = {}
    for code, shown in blocks:
        assert printed_by(code, names) == shown
    written = sorted(path.name for path in pathlib.Path().glob("*.qin"))
    assert written == ["sarcosine.qin", "water.qin"]
