"""Puts figures into a page where they were measured, so that nobody copies them by hand.

    figures.py PAGE BLOCK <TEXT           the block is the text
    figures.py --rows PAGE BLOCK <LINES   the lines take the place of those with the same first word
    figures.py --ratios PAGE <OUTPUT      the rows of a table of ratios go wherever the page has these rows
    figures.py --check PAGE BLOCK...      fails unless the page has these blocks, and no others

A block is what is between the lines "<!-- figures: BLOCK -->" and "<!-- end -->": a fenced text.

The block "all" is a table of ratios with all rows, so it also gets those that are new. The other tables of the
page choose at most ten of them: to show a row, write its name there, as it is in the block "all".
"""

import pathlib
import re
import sys

BLOCK = re.compile(r"^<!-- figures: (\w+) -->\n\n```text\n(.*?)^```\n\n<!-- end -->$", re.M | re.S)
MARKER = re.compile(r"^<!-- (?:figures: .*|end) -->$", re.M)

HEAD = re.compile(r"^what +ratio .*$", re.M)
RATIO = re.compile(r"^(\S.*?) +-?[\d.]+ +(?:exact|-?[\d.]+ - -?[\d.]+) +[\d.]+  \S.*$", re.M)
ALL = "all"
MOST_CHOSEN = 10


def merged(old, new):
    rows = {line.split()[0]: line for line in (old + new).splitlines()}
    return "".join(line + "\n" for line in rows.values())


def with_block(page, block, text):
    start, end = block.span(2)
    return page[:start] + text + page[end:]


def replaced(page, name, text, has_rows):
    blocks = [block for block in BLOCK.finditer(page) if block[1] == name]
    if len(blocks) != 1 or not text.strip():
        raise SystemExit(f"the text for block {name} is empty, or the page does not have one such block")
    return with_block(page, blocks[0], merged(blocks[0][2], text) if has_rows else text)


def tables_of_ratios(page):
    return [block for block in BLOCK.finditer(page) if HEAD.match(block[2])]


def rows_of(table):
    """The rows by their names; one that has not been measured is its name."""
    rows = {}
    for line in table.splitlines():
        ratio = RATIO.match(line)
        if not HEAD.match(line):
            rows[ratio[1] if ratio else line] = line
    return rows


def table_of(head, rows):
    return "".join(line + "\n" for line in [head, *rows.values()])


def with_ratios(page, output):
    measured = {ratio[1]: ratio[0] for ratio in RATIO.finditer(output)}
    head = HEAD.search(output)
    if not measured or not head:
        raise SystemExit("no ratios were measured")
    for block in reversed(tables_of_ratios(page)):
        rows = rows_of(block[2])
        new = measured if block[1] == ALL else {name: measured.get(name, rows[name]) for name in rows}
        page = with_block(page, block, table_of(head[0], rows | new))
        if block[1] == ALL:
            tell_missing(rows.keys() - measured.keys())
    return page


def tell_missing(names):
    for name in sorted(names):
        print(f"not measured: {name}", file=sys.stderr)


def check_ratios(path, page):
    tables = {block[1]: rows_of(block[2]) for block in tables_of_ratios(page)}
    every = tables.pop(ALL, {})
    for name, rows in tables.items():
        if len(rows) > MOST_CHOSEN:
            raise SystemExit(f"{path}: the table {name} has more than {MOST_CHOSEN} rows")
        for row, line in rows.items():
            if every.get(row) != line:
                raise SystemExit(f"{path}: the table {name} has a row that the table {ALL} does not have: {line}")


def check(path, page, names):
    found = [block[1] for block in BLOCK.finditer(page) if block[2].strip()]
    if sorted(found) != sorted(names) or len(MARKER.findall(page)) != 2 * len(found):
        raise SystemExit(f"{path} has the blocks of figures {found}, and not {names}, or one is torn")
    check_ratios(path, page)


def main():
    option = sys.argv.pop(1) if sys.argv[1].startswith("--") else ""
    path = pathlib.Path(sys.argv[1])
    page = path.read_text()
    if option == "--check":
        check(path, page, sys.argv[2:])
    elif option == "--ratios":
        path.write_text(with_ratios(page, sys.stdin.read()))
    else:
        path.write_text(replaced(page, sys.argv[2], sys.stdin.read(), option == "--rows"))


main()
