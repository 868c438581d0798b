"""The list of what is in a release and on what it was built, in the form of SPDX 2.3.

spdx.py write --name NAME --version VERSION --commit COMMIT --sources FOLDER --built-with PACKAGES
              FILE...                       prints the list; PACKAGES are names of Debian packages
spdx.py check LIST                          fails when it has not the form of spdx.schema.json
"""

import argparse
import datetime
import hashlib
import json
import os
import pathlib
import re
import subprocess
import sys


def identifier(*parts):
    """Letters, digits, full stops and hyphens only; what is left out is told apart by a number."""
    text = "-".join(parts)
    plain = re.sub(r"[^A-Za-z0-9.-]+", "-", text)
    return f"SPDXRef-{plain}-{hashlib.sha256(text.encode()).hexdigest()[:8]}"


def checksums(path, *algorithms):
    content = path.read_bytes()
    return [{"algorithm": name, "checksumValue": hashlib.new(name.lower(), content).hexdigest()}
            for name in algorithms]


def package(spdx_id, name, version, **others):
    return {"SPDXID": spdx_id, "name": name, "versionInfo": version,
            "downloadLocation": "NOASSERTION", "filesAnalyzed": False,
            "licenseConcluded": "NOASSERTION", "licenseDeclared": "NOASSERTION",
            "copyrightText": "NOASSERTION", **others}


def released_file(path, version):
    return package(identifier("Release", path.name), path.name, version,
                   packageFileName=path.name, checksums=checksums(path, "SHA256"))


def installed_package(name):
    """What the package and the system say of it; a name that is not installed is an error."""
    shown = subprocess.run(["dpkg-query", "--show", "--showformat=${Version}", name],
                           check=True, capture_output=True, text=True)
    return package(identifier("Debian", name), name, shown.stdout, supplier="Organization: Debian")


def source_file(path, folder):
    name = path.relative_to(folder).as_posix()
    return {"SPDXID": identifier("Source", name), "fileName": f"./{name}",
            "checksums": checksums(path, "SHA1", "SHA256"),
            "licenseConcluded": "NOASSERTION", "copyrightText": "NOASSERTION"}


def relation(subject, kind, other):
    return {"spdxElementId": subject, "relationshipType": kind, "relatedSpdxElement": other}


def make_list(name, version, commit, sources, built_with, released):
    created = datetime.datetime.fromtimestamp(int(os.environ["SOURCE_DATE_EPOCH"]),
                                              datetime.timezone.utc)
    files = [source_file(path, sources) for path in sorted(sources.rglob("*")) if path.is_file()]
    releases = [released_file(path, version) for path in sorted(released)]
    tools = [installed_package(tool) for tool in sorted(set(built_with))]
    project = package("SPDXRef-Sources", name, version, sourceInfo=f"commit {commit}")
    relations = [relation("SPDXRef-DOCUMENT", "DESCRIBES", project["SPDXID"])]
    relations += [relation(project["SPDXID"], "CONTAINS", file["SPDXID"]) for file in files]
    relations += [relation(item["SPDXID"], "GENERATED_FROM", project["SPDXID"])
                  for item in releases]
    relations += [relation(tool["SPDXID"], "BUILD_TOOL_OF", project["SPDXID"]) for tool in tools]
    return {"spdxVersion": "SPDX-2.3", "dataLicense": "CC0-1.0", "SPDXID": "SPDXRef-DOCUMENT",
            "name": name, "documentNamespace": f"https://kelp.invalid/spdx/{name}-{commit}",
            "creationInfo": {"created": created.strftime("%Y-%m-%dT%H:%M:%SZ"),
                             "creators": ["Tool: scripts/release.sh"]},
            "packages": [project] + releases + tools, "files": files, "relationships": relations}


def wrong_references(document):
    """Names in relations that nothing has, and names that more than one thing has."""
    names = [document["SPDXID"]] + [item["SPDXID"] for item in document["packages"]]
    names += [item["SPDXID"] for item in document["files"]]
    used = {relation[end] for relation in document["relationships"]
            for end in ("spdxElementId", "relatedSpdxElement")}
    return sorted(used - set(names)) + sorted({name for name in names if names.count(name) > 1})


def check(path):
    import jsonschema  # Only releases need it.

    document = json.loads(path.read_text())
    schema = json.loads(pathlib.Path(__file__).with_name("spdx.schema.json").read_text())
    jsonschema.validate(document, schema)
    wrong = wrong_references(document)
    if wrong:
        sys.exit(f"{path}: these names are used and mean nothing, or several things: {wrong}")
    print(f"{path.name} has the form that it should have")


def main():
    parser = argparse.ArgumentParser()
    verbs = parser.add_subparsers(dest="verb", required=True)
    write = verbs.add_parser("write")
    for option in ("name", "version", "commit", "built-with"):
        write.add_argument(f"--{option}", required=True)
    write.add_argument("--sources", type=pathlib.Path, required=True)
    write.add_argument("released", nargs="+", type=pathlib.Path)
    verbs.add_parser("check").add_argument("list", type=pathlib.Path)
    chosen = parser.parse_args()
    if chosen.verb == "check":
        check(chosen.list)
        return
    print(json.dumps(make_list(chosen.name, chosen.version, chosen.commit, chosen.sources,
                               chosen.built_with.split(), chosen.released), indent=1))


main()
