"""What the reader silently made of a text that its author probably did not mean."""

from quill_inp import _core
from quill_inp._kinds import Severity
from quill_inp._reader import Record, as_source


class Finding(Record):
    """Something that a text says and its author probably did not mean.

    code: of the rule, for example "QL104"; `quill-inp explain CODE` has its page.
    severity: a Severity.
    line, column: the place, both counted from 1; columns count bytes of the text in UTF-8.
    message: what is wrong.
    advice: what to do about it.
    """

    __module__ = "quill_inp"
    __slots__ = ("code", "severity", "line", "column", "message", "advice")

    def __init__(self, code, severity, line, column, message, advice=""):
        self.code = code
        self.severity = severity
        self.line = line
        self.column = column
        self.message = message
        self.advice = advice


def lint(text, *, select=(), ignore=(), known_commands=()):
    """Returns the findings for a text, `str` or bytes, in the order of their places.

    These are all findings, also where `quill-inp lint` shows only the first 1,000 of a code. For a text of many
    megabytes with a finding in every line, they take much memory.

    select: codes and groups of rules that count; none stands for all.
    ignore: codes and groups of rules that do not count.
    known_commands: names of commands of the project, besides those of every input.

    Raises ValueError for a name that is neither a code nor a group.
    """
    select, ignore = list(select), list(ignore)
    for name in select + ignore:
        if not _core.is_rule_or_group(name):
            raise ValueError(f"{name!r} is neither the code of a rule nor a group of rules")
    findings = _core.lint(as_source(text), select, ignore, list(known_commands))
    return [Finding(code, Severity(severity), *others) for code, severity, *others in findings]
