"""Prepares a Markdown page for the site: page_filter.py PAGE.md

In the tree, pages link to one another by relative path and to a heading by the name that Markdown
viewers give it ("format.md#the-header"). On the site all pages are in one folder, and headings
need names that are unique in it. A link to something that does not exist ends the build. Comments
are left out.
"""

import pathlib
import re
import sys

ROOT = pathlib.Path.cwd()
NAMES = {"README.md": "index", "examples/inputs/README.md": "example-inputs",
         "editors/README.md": "editors"}
FENCE = re.compile(r"^```")
COMMENT = re.compile(r"^<!-- .* -->$")
HEADING = re.compile(r"^(#{1,4}) (.*)$")
LINK = re.compile(r"\]\((?![a-z]+:)([^)#\s]*)(#[^)\s]*)?\)")


def name_of(page):
    path = page.relative_to(ROOT).as_posix()
    return NAMES.get(path, page.stem.lower())


def anchor_of(heading):
    words = re.sub(r"[^\w\- ]", "", heading.lower())
    return words.strip().replace(" ", "-")


def lines_outside_code(text):
    """Yields each line and whether it is one of a code block."""
    is_code = False
    for line in text.splitlines():
        is_fence = FENCE.match(line) is not None
        yield line, is_code or is_fence
        is_code = is_code != is_fence


def anchors_of(page):
    headings = [HEADING.match(line) for line, is_code in lines_outside_code(page.read_text())
                if not is_code]
    return [anchor_of(heading[2]) for heading in headings if heading]


def link_on_site(page, path, anchor):
    target = (page.parent / path).resolve() if path else page
    if not target.is_file():
        sys.exit(f"{page}: no such file: {path}")
    if target.suffix != ".md":
        return target.name
    if not anchor:
        return f"{name_of(target)}.html"
    if anchor[1:] not in anchors_of(target):
        sys.exit(f"{page}: no such heading: {path}{anchor}")
    return f"{name_of(target)}.html#{name_of(target)}-{anchor[1:]}"


def line_on_site(page, line, is_first_heading):
    line = LINK.sub(lambda link: f"]({link_on_site(page, link[1], link[2])})", line)
    heading = HEADING.match(line)
    if not heading:
        return line
    if not is_first_heading:
        return f"{line} {{#{name_of(page)}-{anchor_of(heading[2])}}}"
    is_main_page = name_of(page) == "index"
    return line if is_main_page else f"{line} {{#{name_of(page)}}}\n\n[TOC]"


def main():
    page = pathlib.Path(sys.argv[1]).resolve()
    is_first_heading = True
    for line, is_code in lines_outside_code(page.read_text()):
        if is_code:
            print(line)
            continue
        if COMMENT.match(line):
            continue
        print(line_on_site(page, line, is_first_heading))
        is_first_heading = is_first_heading and not HEADING.match(line)


main()
