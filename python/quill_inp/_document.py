"""Whole inputs."""

import os

from quill_inp import _core
from quill_inp._command import HeaderCommand
from quill_inp._geometry import GeometryBlock
from quill_inp._kinds import GeometryKind, PostCommandKind
from quill_inp._parts import Part, list_member, part_of
from quill_inp._post_command import PostCommand


# How much a number may change when it is written with six decimals.
MAX_CHANGE = 1e-6


def take_command(value):
    """Returns what C++ holds of a command."""
    return part_of(HeaderCommand, value)


def take_post_command(value):
    """Returns what C++ holds of a post-processing line."""
    return part_of(PostCommand, value)


class QuillInput(Part):
    """A whole input. Every list has the order of the lines in the file.

    Commands are found by name without regard to letter case, blanks around the name and one leading
    `#`, see normalize_command_name(). `occurrence` counts those with the same name from 0.
    """

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(self, commands=(), geometry=None, post_commands=()):
        self._part = _core.new_document()
        self.commands = commands
        if geometry is not None:
            self.geometry = geometry
        self.post_commands = post_commands

    commands = list_member(
        "commands",
        HeaderCommand._of,
        take_command,
        "The header. Several commands may have the same name.",
    )
    post_commands = list_member(
        "post_commands",
        PostCommand._of,
        take_post_command,
        "The lines after the coordinates, including those that the reader does not understand.",
    )

    @property
    def geometry(self):
        """Everything between the header and the post-processing lines. What is assigned is copied
        into the document.
        """
        return GeometryBlock._of(self._part.geometry())

    @geometry.setter
    def geometry(self, value):
        self._part.set_geometry(part_of(GeometryBlock, value))

    def find_command(self, name, occurrence=0):
        """Returns the command that is number `occurrence` among those named `name`, or None."""
        found = self._part.find_command(name, occurrence)
        return None if found is None else HeaderCommand._of(found)

    def has_command(self, name):
        """Returns whether at least one command has this name."""
        return self._part.has_command(name)

    def has_task_command(self):
        """Returns whether the document has a command named `sp`, `opt`, `ts`, `freq`, `irc` or
        `scan`, of any kind.
        """
        return self._part.has_task_command()

    def command_names(self):
        """Returns the stored name of every command, in document order."""
        return self._part.command_names()

    def upsert_command(self, name):
        """Returns the first command named `name`; if there is none, appends a flag that stores
        `name` exactly as given and returns that.
        """
        return HeaderCommand._of(self._part.upsert_command(name))

    def remove_command(self, name, occurrence=None):
        """Removes every command named `name`, or only the one that is number `occurrence` among
        them, and returns whether a command was removed.
        """
        return self._part.remove_command(name, occurrence)

    def to_string(self):
        """Returns the canonical text. Nothing is quoted or escaped."""
        return self._part.text()

    def sha256(self, *, base=None):
        """Returns the SHA-256 of the canonical text, with quotes around values that need them: what
        `quill-inp hash` prints for the document. Raises LossError if no text says what the document
        says.

        base: the folder to which paths of referenced files are relative. With it, what is in these
        files counts too: the result is the SHA-256 of the hash of the text and the hash of each
        referenced file, one on each line, in the order of referenced_files(). Raises OSError for a file
        that cannot be read.
        """
        text = _core.proved_text(self._part, MAX_CHANGE, False)
        own = _sha256(text.encode("utf-8", "surrogateescape"))
        if base is None:
            return own
        hashes = [own]
        for path in self.referenced_files():
            with open(os.path.join(os.fspath(base), path), "rb") as file:
                hashes.append(_sha256(file.read()))
        return _sha256("".join(f"{one}\n" for one in hashes).encode())

    def referenced_files(self):
        """Returns the paths of the files that the text of the document names, as they are spelled and in
        the order of their lines: XYZ files or the trajectory, and post files.
        """
        geometry = self.geometry
        files = {
            GeometryKind.XYZ_FILE: list(geometry.xyz_files),
            GeometryKind.XYZ_TRAJECTORY: geometry.xyz_files[:1],
        }
        return files.get(geometry.kind, []) + [
            line.post_file for line in self.post_commands if line.kind is PostCommandKind.POST_FILE
        ]

    def to_dict(self):
        """Returns the document as the JSON of `quill-inp json`, in dicts and lists. Nothing is lost:
        a str that is not UTF-8 becomes {"bytes": "6869ff"}, a number that is not finite its name.
        """
        import json

        return json.loads(_core.json_of(self._part))

    @classmethod
    def from_dict(cls, members):
        """Returns the document that such a dict describes. Raises ValueError, with the place, for a
        dict of another form; unknown members are refused.
        """
        import json

        return cls._of(_core.document_from_json(json.dumps(members, allow_nan=False)))

    def write_file(self, path):
        """Creates or truncates the file at `path` and writes the canonical text into it. Raises
        OSError when the file cannot be opened; later errors, such as a full disk, are not reported.
        """
        self._part.write_file(os.fsencode(path))

    def __repr__(self):
        return f"QuillInput({self.commands!r}, {self.geometry!r}, {self.post_commands!r})"

    def _repr_html_(self):
        from quill_inp._notebook import to_html

        return to_html(self)

    def __reduce__(self):
        return _from_pickle, (type(self), 1, _core.json_of(self._part))


def _sha256(data):
    import hashlib

    return hashlib.sha256(data).hexdigest()


def _from_pickle(kind, version, text):
    """Returns the document of a pickle. Pickles of every version must be read by all later ones."""
    if version != 1:
        raise ValueError(f"a pickle of version {version}, which is newer than this package")
    return kind._of(_core.document_from_json(text))


def normalize_command_name(name):
    """Returns the form in which command names are compared: trimmed, without one leading `#`,
    trimmed again, and in lower case (ASCII letters only). " # Opt " gives "opt".
    """
    return _core.normalize_command_name(name)
