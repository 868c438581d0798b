"""Programs that use the package, those of the documentation included, have types without doubt."""

import pathlib
import subprocess
import sys

from documentation_test import ROOT, blocks_of

HERE = pathlib.Path(__file__).parent


def doubts(*files):
    """Returns what mypy finds in files."""
    run = subprocess.run(
        [sys.executable, "-m", "mypy", "--config-file", str(HERE / "mypy.ini"), *map(str, files)],
        capture_output=True,
        text=True,
    )
    assert run.returncode in (0, 1), run.stderr
    return run.stdout.splitlines()[:-1]


def page_as_program(page, folder):
    """Writes the blocks of a page as one program, on the lines that they have on the page."""
    text = (ROOT / page).read_text(encoding="utf-8")
    program = [""] * text.count("\n")
    at = 0
    for code, _ in blocks_of(text):
        at = text.index(code, at)
        first = text.count("\n", 0, at)
        program[first : first + code.count("\n")] = code.splitlines()
    path = folder / f"{pathlib.Path(page).stem.lower()}_page.py"
    path.write_text("\n".join(program) + "\n", encoding="utf-8")
    return path


def test_no_program_leaves_a_doubt(tmp_path):
    pages = [page_as_program(page, tmp_path) for page in ("README.md", "docs/python.md")]
    examples = sorted((ROOT / "examples/python").glob("*.py"))
    assert [path.name for path in examples] == ["dask_sweep.py", "sweep.py"]
    assert doubts(HERE / "typed_use.py", *examples, *pages) == []


def test_a_wrong_program_is_found(tmp_path):
    wrong = tmp_path / "wrong.py"
    wrong.write_text("import quill_inp\nquill_inp.read(5)\n\n\ndef use(value):\n    pass\n")
    assert [line.split(":")[1] for line in doubts(wrong)] == ["2", "5"]
