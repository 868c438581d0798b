"""Prints docs/python-reference.md: what the package quill_inp offers, from its documentation and its types.

    PYTHONPATH=build/dev/python /usr/bin/python3 scripts/support/write_python_reference.py \\
      >docs/python-reference.md

The words are those of the docstrings, the types those of the stubs beside them, and the defaults those of
the functions. Fails when a public name is in no section.
"""

import ast
import enum
import importlib
import inspect
import pathlib
import re

import quill_inp
from quill_inp._reader import Record

SECTIONS = {
    "Reading": "read loads parse_string parse_file parse_lines lines ParseResult ParsedLines LineRecord "
    "LineRole InputWarning",
    "Documents": "QuillInput HeaderCommand HeaderCommandKind CommandParameter GeometryBlock GeometryKind "
    "AtomRecord PostCommand PostCommandKind PartList find_parameter_index normalize_command_name",
    "Operations": "InputEditor InputBuilder",
    "Texts and files of others": "edit TextEdit edit_file FileEdit write_file LossError FileWarning",
    "Findings": "lint Finding Severity",
}
MODULES = ("ase", "pymatgen", "rdkit")
HEAD = """\
# Python reference

Everything that `import quill_inp` offers. [Python](python.md) shows by examples how it is used. This page is
made of the docstrings and the types of the package.
"""
PARAMETER = re.compile(r"^(\w+(?:, \w+)*): ")
ENUMERATOR = re.compile(r"^    (\w+) = \d+  # (.*)$", re.MULTILINE)
PACKAGE = pathlib.Path(quill_inp.__file__).parent


def sections():
    """Yields titles and objects by their names, for the package and its modules."""
    taken = {"__version__"}
    for title, names in SECTIONS.items():
        taken.update(names.split())
        yield title, "quill_inp", {name: getattr(quill_inp, name) for name in names.split()}
    missing = set(quill_inp.__all__) ^ (taken - {"__version__"})
    if missing:
        raise SystemExit(f"in no section, or not in the package: {sorted(missing)}")
    for name in MODULES:
        module = importlib.import_module(f"quill_inp.{name}")
        yield module.__name__, module.__name__, {one: getattr(module, one) for one in module.__all__}


class Types:
    """What one of the stubs says."""

    def __init__(self, path):
        self.body = ast.parse(path.read_text(encoding="utf-8")).body
        self.aliases = {
            node.targets[0].id: node.value
            for node in self.body
            if isinstance(node, ast.Assign) and isinstance(node.targets[0], ast.Name)
        }

    def visit(self, node):
        """Returns the text of a type, with the private names of the stubs replaced by their meaning."""
        aliases = self.aliases

        class Replaced(ast.NodeTransformer):
            def visit_Name(self, name):
                meaning = aliases.get(name.id, name)
                is_variable = isinstance(meaning, ast.Call)  # of TypeVar
                return ast.Name(name.id.lstrip("_")) if is_variable else meaning

        return ast.unparse(Replaced().visit(node))

    def functions(self, name, kind=None):
        """Returns the definitions of a function, several if it is overloaded."""
        return [
            node
            for node in self.members(kind)
            if isinstance(node, ast.FunctionDef) and node.name == name and not is_setter(node)
        ]

    def annotation(self, kind, name):
        for node in self.members(kind):
            if isinstance(node, ast.AnnAssign) and node.target.id == name:
                return self.visit(node.annotation)
            if isinstance(node, ast.FunctionDef) and node.name == name and not is_setter(node):
                return self.visit(node.returns)
        return None

    def members(self, kind):
        if kind is None:
            return self.body
        classes = [node for node in self.body if isinstance(node, ast.ClassDef) and node.name == kind]
        return classes[0].body if classes else []


def is_setter(node):
    return any(isinstance(one, ast.Attribute) for one in node.decorator_list)


def types_by_name():
    """Returns which of the stubs defines each function and class of the package."""
    found = {}
    for path in sorted(PACKAGE.glob("*.pyi")):
        types = Types(path)
        for node in types.body:
            if isinstance(node, (ast.ClassDef, ast.FunctionDef)):
                found[node.name] = types
    return found


TYPES = types_by_name()


def signature(types, node, function, name, skip):
    """Returns one line: the name, parameters with types and defaults, and the type of the result."""
    defaults = {
        one.name: repr(one.default)
        for one in inspect.signature(function).parameters.values()
        if one.default is not inspect.Parameter.empty
    }
    arguments = node.args.args[skip:]
    optional = len(node.args.defaults)
    shown = [
        parameter(types, one, defaults, i >= len(arguments) - optional)
        for i, one in enumerate(arguments)
    ]
    if node.args.kwonlyargs:
        shown.append("*")
    for one, default in zip(node.args.kwonlyargs, node.args.kw_defaults):
        shown.append(parameter(types, one, defaults, default is not None))
    result = "" if node.name == "__init__" else f" -> {types.visit(node.returns)}"
    return f"{name}({', '.join(shown)}){result}"


def parameter(types, node, defaults, is_optional):
    text = node.arg if node.annotation is None else f"{node.arg}: {types.visit(node.annotation)}"
    return f"{text} = {defaults[node.arg]}" if is_optional else text


def fenced(lines):
    return "```python\n" + "".join(f"{line}\n" for line in lines) + "```\n"


def description(thing):
    """Returns a docstring as Markdown; what it says of parameters becomes a list."""
    return "\n\n".join(map(paragraph, inspect.cleandoc(thing.__doc__ or "").split("\n\n"))) + "\n"


def paragraph(text):
    if not PARAMETER.match(text):
        return text
    lines = [
        PARAMETER.sub(r"- `\1`: ", line) if PARAMETER.match(line) else f"  {line.strip()}"
        for line in text.splitlines()
    ]
    return "\n".join(lines)


def function_entry(name, thing):
    types = TYPES[thing.__name__]
    nodes = types.functions(thing.__name__)
    return fenced(signature(types, node, thing, name, 0) for node in nodes) + "\n" + description(thing)


def owners_of(kind):
    """Returns the classes of the package whose members a class has, itself first."""
    return [one for one in kind.__mro__ if (one.__module__ or "").startswith("quill_inp")]


def member_entry(owner, name, thing):
    """Returns the entry of a method, a property or a value."""
    types = TYPES[owner.__name__]
    if isinstance(thing, (classmethod, staticmethod)) or inspect.isfunction(thing):
        function = getattr(thing, "__func__", thing)
        nodes = types.functions(name, owner.__name__)
        shown = fenced(signature(types, node, function, name, 1) for node in nodes)
        return f"{shown}\n{description(function)}"
    annotation = types.annotation(owner.__name__, name)
    if annotation is None:
        raise SystemExit(f"{owner.__name__}.{name} has no type")
    words = description(thing) if isinstance(thing, property) else ""
    return f"{fenced([f'{name}: {annotation}'])}\n{words}"


def meanings_of(kind):
    """Returns the comment beside each value of an enumeration."""
    source = (PACKAGE / "_kinds.py").read_text(encoding="utf-8")
    (body,) = re.findall(rf"^class {kind.__name__}\(.*?(?=^class |^def )", source, re.MULTILINE | re.DOTALL)
    return dict(ENUMERATOR.findall(body))


def class_entry(kind, shown):
    """Returns the entry of a class, and notes in `shown` where its members are described."""
    parts = [description(kind)]
    if issubclass(kind, enum.Enum):
        meanings = meanings_of(kind)
        parts.append("".join(f"- `{one.name}` ({one.value}): {meanings[one.name]}\n" for one in kind))
        return "\n".join(parts)
    if "__init__" in vars(kind) and kind is not quill_inp.PartList:  # which only documents make
        types = TYPES[kind.__name__]
        nodes = types.functions("__init__", kind.__name__)
        parts.insert(0, fenced(signature(types, one, kind.__init__, kind.__name__, 1) for one in nodes))
    if issubclass(kind, Record):
        types = TYPES[kind.__name__]
        members = [f"{name}: {types.annotation(kind.__name__, name)}" for name in kind.__slots__]
        return "\n".join([*parts, fenced(members)])
    elsewhere = {}
    for owner in owners_of(kind):
        for name, thing in vars(owner).items():
            if name.startswith("_"):
                continue
            if (owner, name) in shown:
                elsewhere.setdefault(shown[owner, name], []).append(name)
                continue
            shown[owner, name] = kind.__name__
            parts.append(f"#### {kind.__name__}.{name}\n\n{member_entry(owner, name, thing)}")
    for other, names in elsewhere.items():
        listed = ", ".join(f"`{name}`" for name in names)
        parts.append(f"As [{other}](#{other.lower()}): {listed}.\n")
    return "\n".join(parts)


def page():
    parts = [HEAD]
    shown = {}
    described = set()
    for title, module, things in sections():
        parts.append(f"## {title}\n")
        if module != "quill_inp":
            parts.append(description(importlib.import_module(module)))
        for name, thing in things.items():
            if thing in described:
                parts.append(f"`{name}` is [the same](#{name.lower()}) in this module.\n")
                continue
            described.add(thing)
            entry = class_entry(thing, shown) if inspect.isclass(thing) else function_entry(name, thing)
            parts.append(f"### {name}\n\n{entry}")
    return re.sub(r"\n{3,}", "\n\n", "\n".join(parts))


if __name__ == "__main__":
    print(page(), end="")
