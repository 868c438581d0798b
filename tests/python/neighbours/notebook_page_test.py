"""A document that shows itself, in a browser."""

import json
import re
import subprocess

import pytest

import quill_inp
from quill_inp import LineRole, _notebook

TEXT = """\
#opt(maxiter=50)
#model = <b onclick="alert(1)">&amp;

0 1
O 0 0 0.117176
Hx 0 0.756950 -0.468706

B 1 2
"""
# What the browser made of each line, as the text of an element.
SCRIPT = """\
<script>
  const lines = [...document.querySelectorAll('pre > span')].map((line) => {
    const beside = line.nextElementSibling;
    const warning = beside && beside.tagName === 'B' ? beside : null;
    const middle = (box) => (box.top + box.bottom) / 2;
    const place = warning && warning.getBoundingClientRect();
    const own = line.getBoundingClientRect();
    return {
      role: line.title,
      colour: getComputedStyle(line).color,
      text: line.textContent,
      children: line.children.length,
      warning: warning && warning.textContent,
      isBeside: warning && Math.abs(middle(place) - middle(own)) < 2 && place.left >= own.right,
    };
  });
  const shown = document.createElement('script');
  shown.type = 'application/json';
  shown.id = 'lines';
  shown.textContent = JSON.stringify(lines).replaceAll('<', '\\\\u003c');
  document.body.append(shown);
</script>
"""


def in_browser(html, folder):
    """Returns what the browser made of each line."""
    page = folder / "page.html"
    page.write_text(f'<!doctype html><meta charset="utf-8"><body style="color:#123456">{html}{SCRIPT}')
    run = subprocess.run(
        [
            "chromium",
            *["--headless", "--no-sandbox", "--disable-gpu", "--no-first-run"],
            *["--disable-background-networking", "--disable-component-update", "--disable-sync"],
            *[f"--user-data-dir={folder / 'profile'}", "--dump-dom", page.as_uri()],
        ],
        capture_output=True,
        text=True,
        check=True,
    )
    (found,) = re.findall(r'id="lines">(.*?)</script>', run.stdout, re.DOTALL)
    return json.loads(found)


@pytest.fixture(scope="module")
def lines(tmp_path_factory):
    document = quill_inp.parse_string(TEXT).input
    return in_browser(document._repr_html_(), tmp_path_factory.mktemp("browser"))


def rgb(colour):
    if colour == "inherit":
        colour = "#123456"
    return f"rgb({int(colour[1:3], 16)}, {int(colour[3:5], 16)}, {int(colour[5:7], 16)})"


def test_each_line_has_the_colour_of_its_role(lines):
    roles = [line["role"] for line in lines]
    assert roles == [record.role.name for record in quill_inp.lines(TEXT)]
    for line in lines:
        if line["role"] != "BLANK":
            assert line["colour"] == rgb(_notebook._COLOURS[LineRole[line["role"]]])
    assert len({line["colour"] for line in lines}) == 4


def test_the_text_is_shown_as_it_is_and_is_never_markup(lines):
    document = quill_inp.parse_string(TEXT).input
    assert [line["text"] for line in lines] == str(document).splitlines()
    assert lines[1]["text"] == '#model = <b onclick="alert(1)">&amp;'
    assert [line["children"] for line in lines] == [0] * len(lines)


def test_a_warning_is_beside_its_line(lines):
    warned = [line for line in lines if line["warning"]]
    assert [(line["text"].split()[0], line["warning"]) for line in warned] == [
        ("Hx", "\u26a0 unknown element symbol 'Hx'")
    ]
    assert warned[0]["isBeside"] is True
