"""What the exchange of structures with other packages has in common."""

import warnings

from quill_inp._document import QuillInput
from quill_inp._editor import InputEditor


class NotCarriedWarning(UserWarning):
    """Something that the receiver of a structure has no place for. The message names it."""

    __module__ = "quill_inp"


def warn_of_losses(receiver, losses, stacklevel=3):
    """Issues one warning that names all losses, each once, or none when there are none."""
    if losses:
        named = ", ".join(dict.fromkeys(losses))
        warnings.warn(
            NotCarriedWarning(f"{receiver} has no place for: {named}"), stacklevel=stacklevel
        )


def document_of(symbols, positions, charge, multiplicity):
    """Returns a document with a structure and no commands."""
    editor = InputEditor(QuillInput())
    editor.set_charge_and_multiplicity(charge, multiplicity)
    editor.set_geometry(symbols, positions)
    return editor.document()


def whole_number(name, value):
    """Returns a number, which may be a float of another package, as an int."""
    if int(value) != value:
        raise ValueError(f"the {name} is {value}; an input has whole numbers only")
    return int(value)
