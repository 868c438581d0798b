"""The published schemas describe what the program prints, and nothing else.

    schemas_test.py PROGRAM SOURCE_DIR
"""

import copy
import json
import pathlib
import subprocess
import sys
import tempfile

import jsonschema

program, source = sys.argv[1], pathlib.Path(sys.argv[2])

ODD_INPUTS = {
    "every_line.qin": b"#opt(maxiter=50, tight)\n#model = m1\n#device = gpu\n#basis = large\n"
    b"-1 2\nO 0 0 0.117\nH 0 0.757 -0.469\n\nC 1\nB 1 2\nA 1 2 3\nD 1 2 3 4\nS 1 2 1.5 10\n"
    b"POST a.dat\nfree text\nB 1 x\n",
    "no_utf8_\udce9.qin": b"#model = \xff\n#\xfe(\xfd=\xfc)\nXYZ \xfb\nPOST \xfa\n\xf9\n",
    "infinite_scan.qin": b"#sp\n0 1\nHe 0 0 0\n\nS 1 2 inf 3\nS 1 2 -nan 3\n",
    "trajectory.qin": b"#irc\nXYZTRAJ path.xyz\n",
    "odd_values.qin": b"#\n# = \n#()\n#model\n#device()\n0 1 2\n",
    "empty.qin": b"",
}


def schema_of(name):
    schema = json.loads((source / "docs" / name).read_text())
    jsonschema.Draft202012Validator.check_schema(schema)
    return schema


def printed(*arguments):
    run = subprocess.run([program, *arguments], check=True, capture_output=True)
    return [json.loads(line) for line in run.stdout.splitlines()]


def mutations(value):
    """Values that differ from an object in one member."""
    for name in value:
        yield f"without {name}", {key: entry for key, entry in value.items() if key != name}
        yield f"{name} of another type", {**value, name: True}
    yield "with one more member", {**value, "no_such_member": 1}


def objects_in(value):
    """The objects in a value that have a member, itself among them."""
    if isinstance(value, dict):
        for name, entry in value.items():
            yield from objects_in(entry)
    elif isinstance(value, list):
        for entry in value:
            yield from objects_in(entry)
    if isinstance(value, dict) and value:
        yield value


def changed(value, old, new):
    if value is old:
        return new
    if isinstance(value, dict):
        return {name: changed(entry, old, new) for name, entry in value.items()}
    if isinstance(value, list):
        return [changed(entry, old, new) for entry in value]
    return copy.copy(value)


document = schema_of("quill-inp.schema.json")
summary = schema_of("quill-inp.show.schema.json")
for name, definition in summary["$defs"].items():
    assert document["$defs"].get(name, definition) == definition, f"two meanings of {name}"

with tempfile.TemporaryDirectory() as folder:
    for name, content in ODD_INPUTS.items():
        pathlib.Path(folder, name).write_bytes(content)
    inputs = sorted(str(path) for root in (folder, source / "examples/inputs")
                    for path in pathlib.Path(root).glob("*.qin"))
    assert len(inputs) > len(ODD_INPUTS)
    validator = jsonschema.Draft202012Validator(summary)
    members_seen = set()
    for shown in printed("show", "--json", *inputs):
        validator.validate(shown)
        members_seen |= {name for name, value in shown.items() if value not in (None, [], "", 0)}
        # A command and a parameter may be without a value, and be valid.
        for part in objects_in(shown):
            optional = {"value", "parameters"} & set(part)
            for what, other in mutations(part):
                if what in {f"without {name}" for name in optional}:
                    continue
                assert not validator.is_valid(changed(shown, part, other)), (what, part)
    assert members_seen == set(summary["properties"]), "some member is always empty"
    for name in inputs:
        run = subprocess.run([program, "json", "-q", name], check=True, capture_output=True)
        jsonschema.Draft202012Validator(document).validate(json.loads(run.stdout))

print("the schemas describe what is printed")
