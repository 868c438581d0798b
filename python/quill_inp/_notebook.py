"""How a document shows itself in a notebook."""

import html

from quill_inp._kinds import LineRole
from quill_inp._reader import parse_lines

# Readable on a light and on a dark background.
_COLOURS = {
    LineRole.COMMAND: "#2a7ab0",
    LineRole.CHARGE_AND_MULTIPLICITY: "#a0629c",
    LineRole.ATOM: "inherit",
    LineRole.XYZ_REFERENCE: "#3b8a5a",
    LineRole.TRAJECTORY: "#3b8a5a",
    LineRole.POST_COMMAND: "#b0702a",
    LineRole.DROPPED: "#c0504d",
}
_MOST_LINES = 200


def to_html(document):
    """Returns a summary of a document and its text, with the warnings of the reader beside it."""
    data = document.to_string().encode("utf-8", "surrogateescape")
    parsed = parse_lines(data)
    warnings = {}
    for warning in parsed.result.warnings:
        warnings.setdefault(warning.line, []).append(warning.message)
    shown = [
        _line(data, record, warnings.get(number, ()))
        for number, record in enumerate(parsed.lines[:_MOST_LINES], 1)
    ]
    if len(parsed.lines) > _MOST_LINES:
        shown.append(f"... and {len(parsed.lines) - _MOST_LINES} more lines")
    shown.extend(f"&#9888; {_escaped(message)}" for message in warnings.get(None, ()))
    return f"<div><div>{_escaped(_summary(document))}</div><pre>{chr(10).join(shown)}</pre></div>"


def _summary(document):
    geometry = document.geometry
    content = f"{len(geometry.atoms)} atoms, {len(geometry.xyz_files)} referenced files"
    return (
        f"QuillInput: {len(document.commands)} commands, charge {geometry.charge}, "
        f"multiplicity {geometry.multiplicity}, {content}, "
        f"{len(document.post_commands)} post-processing lines"
    )


def _line(data, record, warnings):
    text = data[record.offset : record.offset + record.length].decode("utf-8", "replace")
    colour = _COLOURS.get(record.role, "inherit")
    shown = f'<span style="color:{colour}" title="{record.role.name}">{_escaped(text)}</span>'
    return shown + "".join(f"  <b>&#9888; {_escaped(message)}</b>" for message in warnings)


def _escaped(text):
    return html.escape(text.encode("utf-8", "replace").decode())
