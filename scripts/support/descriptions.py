"""Fails when the reference does not describe each function in a sentence of its own:
descriptions.py XML_FOLDER

Reads what Doxygen made of the headers. A comment above several declarations becomes the description
of each, and then says of one function what only another does. Overloads and functions of the same
name in two classes may have the same description, since they do the same.
"""

import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def words_of(member):
    parts = [member.find("briefdescription"), member.find("detaileddescription")]
    return " ".join(" ".join("".join(part.itertext()) for part in parts if part is not None).split())


def public_functions(folder):
    """Yields name and description of each function, once."""
    seen = set()
    for file in sorted(pathlib.Path(folder).glob("*.xml")):
        for member in ElementTree.parse(file).iter("memberdef"):
            is_public = member.get("kind") == "function" and member.get("prot") == "public"
            if is_public and member.get("id") not in seen:
                seen.add(member.get("id"))
                yield member.findtext("name"), member.findtext("definition"), words_of(member)


def findings(functions):
    first_with = {}
    for name, definition, words in functions:
        other_name, other_definition = first_with.setdefault(words, (name, definition))
        if not words:
            yield f"{definition} has no description"
        elif other_name != name:
            yield f"{other_definition} and {definition} are both described as: {words}"


def main():
    functions = list(public_functions(sys.argv[1]))
    if not functions:
        sys.exit(f"no functions are described in {sys.argv[1]}")
    found = list(findings(functions))
    if found:
        sys.exit("\n".join(found))
    print(f"{len(functions)} functions have descriptions of their own")


main()
