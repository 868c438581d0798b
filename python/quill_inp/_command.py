"""Header commands and their parameters."""

from quill_inp import _core
from quill_inp._kinds import HeaderCommandKind, number_of
from quill_inp._parts import Part, kind_member, list_member, member, part_of


class CommandParameter(Part):
    """One entry of a parameter list: `tight` (no value), `maxiter=50`, or `basis=`, an empty value,
    which is not the same as no value.
    """

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(self, name="", value=None):
        self._part = _core.new_parameter(name, value)

    name = member("name", "The text before the first `=`, or the whole entry.")
    value = member("value", "The text after the first `=`, or None.")

    def __repr__(self):
        return f"CommandParameter({self.name!r}, {self.value!r})"

    def __reduce__(self):
        return type(self), (self.name, self.value)


def _take_parameter(value):
    return part_of(CommandParameter, value)


class HeaderCommand(Part):
    """One header line. Only what `kind` selects is written."""

    __module__ = "quill_inp"
    __slots__ = ()

    def __init__(self, name="", kind=HeaderCommandKind.FLAG, value=None, parameters=()):
        self._part = _core.new_command(name, number_of(HeaderCommandKind, kind), value)
        self.parameters = parameters

    name = member("name", "The name without the leading `#`, as it was stored.")
    kind = kind_member(
        HeaderCommandKind, number_of, "Decides which of the two next members is written."
    )
    value = member("value", "The assigned value, used only by an assignment, or None.")
    parameters = list_member(
        "parameters",
        CommandParameter._of,
        _take_parameter,
        "The entries between the parentheses, in order, used only by a parameter list. Several "
        "may have the same name.",
    )

    def __repr__(self):
        return (
            f"HeaderCommand({self.name!r}, {self.kind!r}, {self.value!r}, {self.parameters!r})"
        )

    def __reduce__(self):
        return type(self), (self.name, self.kind, self.value, list(self.parameters))


def find_parameter_index(command, name):
    """Returns the index of the first parameter of `command` whose name equals `name` when both are
    trimmed and in lower case, or None.
    """
    return part_of(HeaderCommand, command).find_parameter_index(name)
