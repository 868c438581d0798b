"""Post-processing lines."""

from quill_inp import _core
from quill_inp._kinds import PostCommandKind, number_of
from quill_inp._numbers import expression
from quill_inp._parts import Part, kind_member, list_member, member


def _same(value):
    return value


class PostCommand(Part):
    """One post-processing line. Only what `kind` selects is written."""

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(
        self,
        kind=PostCommandKind.RAW,
        atom_indices=(),
        scan_value=None,
        scan_steps=None,
        post_file="",
        raw_text="",
    ):
        self._part = _core.new_post_line(
            number_of(PostCommandKind, kind),
            list(atom_indices),
            scan_value,
            scan_steps,
            post_file,
            raw_text,
        )

    kind = kind_member(
        PostCommandKind, number_of, "Decides which of the other members are written."
    )
    atom_indices = list_member(
        "atom_indices",
        _same,
        _same,
        "Atom numbers as in the file, for constraints and scans; neither their count nor their "
        "range is checked.",
    )
    scan_value = member(
        "scan_value",
        "The value of a scan, in the unit of the file, or None; written with up to six significant "
        "digits.",
    )
    scan_steps = member("scan_steps", "The number of steps of a scan, or None.")
    post_file = member("post_file", "The path of a post file. The file is never opened.")
    raw_text = member(
        "raw_text",
        "The trimmed line, which the reader keeps for every kind. It is written, and compared, for "
        "raw text only.",
    )

    def __repr__(self):
        return (
            f"PostCommand({self.kind!r}, {self.atom_indices!r}, {expression(self.scan_value)}, "
            f"{self.scan_steps}, {self.post_file!r}, {self.raw_text!r})"
        )

    def __reduce__(self):
        return type(self), (
            self.kind,
            list(self.atom_indices),
            self.scan_value,
            self.scan_steps,
            self.post_file,
            self.raw_text,
        )
