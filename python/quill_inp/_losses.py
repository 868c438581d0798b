"""What is refused because it would lose something."""


class LossError(ValueError):
    """A text was not made, because something would be lost.

    reason: what, in the words of the tool.
    line: the number of the line that it is about, counted from 1, or None. It is a line of the old
        text that says more than is kept, or a line of the new one that would be read differently.
    """

    __module__ = "quill_inp"

    def __init__(self, reason, line=None):
        super().__init__(reason, line)

    @property
    def reason(self):
        """What would be lost."""
        return self.args[0]

    @property
    def line(self):
        """The number of the line that it is about, or None."""
        return self.args[1]

    def __str__(self):
        return self.reason
