"""Puts figures into a page where they were measured, so that nobody copies them by hand.

    figures.py PAGE BLOCK <TEXT           the block is the text
    figures.py --rows PAGE BLOCK <LINES   the lines take the place of those with the same first word
    figures.py --check PAGE BLOCK...      fails unless the page has these blocks, and no others

A block is what is between the lines "<!-- figures: BLOCK -->" and "<!-- end -->": a fenced text.
"""

import pathlib
import re
import sys

BLOCK = re.compile(r"^<!-- figures: (\w+) -->\n\n```text\n(.*?)^```\n\n<!-- end -->$", re.M | re.S)
MARKER = re.compile(r"^<!-- (?:figures: .*|end) -->$", re.M)


def merged(old, new):
    rows = {line.split()[0]: line for line in (old + new).splitlines()}
    return "".join(line + "\n" for line in rows.values())


def replaced(page, name, text, has_rows):
    blocks = [block for block in BLOCK.finditer(page) if block[1] == name]
    if len(blocks) != 1 or not text.strip():
        raise SystemExit(f"the text for block {name} is empty, or the page does not have one such block")
    start, end = blocks[0].span(2)
    return page[:start] + (merged(blocks[0][2], text) if has_rows else text) + page[end:]


def check(path, page, names):
    found = [block[1] for block in BLOCK.finditer(page) if block[2].strip()]
    if sorted(found) != sorted(names) or len(MARKER.findall(page)) != 2 * len(found):
        raise SystemExit(f"{path} has the blocks of figures {found}, and not {names}, or one is torn")


def main():
    option = sys.argv.pop(1) if sys.argv[1].startswith("--") else ""
    path = pathlib.Path(sys.argv[1])
    page = path.read_text()
    if option == "--check":
        check(path, page, sys.argv[2:])
    else:
        path.write_text(replaced(page, sys.argv[2], sys.stdin.read(), option == "--rows"))


main()
