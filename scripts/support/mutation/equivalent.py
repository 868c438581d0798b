"""The list of mutants that no test can tell from the source, each with its reason.

A list is a text of blocks, with an empty line between them. A block names its file, then the lines
before and after each change ("- " and "+ ", without indentation), then the reason. It applies to
every such line in the file.
"""


def read(path):
    """The reasons by file, line before and line after."""
    reasons = {}
    for block in path.read_text().split("\n\n"):
        lines = [line for line in block.splitlines() if line and not line.startswith("#")]
        if not lines:
            continue
        before = [line[2:] for line in lines if line.startswith("- ")]
        after = [line[2:] for line in lines if line.startswith("+ ")]
        reason = " ".join(line for line in lines[1:] if line[:2] not in ("- ", "+ "))
        if len(before) != len(after) or not before or not reason:
            raise SystemExit(f"{path} has a block without pairs or without a reason: {lines[0]}")
        for pair in zip(before, after):
            reasons[(lines[0], *pair)] = reason
    return reasons
