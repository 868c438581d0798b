#!/usr/bin/env bash
# Findings in the forms that other programs read: SARIF is valid by its published schema, JSON and the
# problem matcher agree with the text, and the hooks of pre-commit find what the program finds.
#
#   findings_test.sh PROGRAM SOURCE_DIR
#
# KELP_QUILL_INP_SARIF_DIR names the folder of the schema. Without that variable, and without pre-commit,
# those checks are left out, and the last line says so.
set -euo pipefail
export LC_ALL=C.UTF-8
program=$1
source=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
left_out=()

fail() {
  echo "$1" >&2
  exit 1
}

cp -r "$source/examples/inputs/." "$scratch"
cd "$scratch"
printf '#opt\n0 1\nH 0 0 0\nH 0 0 \xe2\x88\x921,5\nH 0 0 3\n' >'100% odd, é.qin'
printf '\xff\xfe#\0' >wide.qin
: >empty.qin
printf '#opt(a, b, a)\n0 1\nHe 0 0 0\n' >twice.qin
printf '#opt(a%s)\n0 1\nHe 0 0 0\n' "$(printf '%01003d' 0 | tr 0 ,)" >many.qin

for form in text json github sarif; do
  "$program" lint -q --fail-on=never --format=$form *.qin >"found.$form" || fail "lint --format=$form"
done

if [ -n "${KELP_QUILL_INP_SARIF_DIR:-}" ]; then
  schema=$KELP_QUILL_INP_SARIF_DIR/sarif-schema-2.1.0.json
  [ -f "$schema" ] || fail "KELP_QUILL_INP_SARIF_DIR does not lead to the schema of SARIF: no file $schema"
  # The Python of the system has the package that scripts/test.sh installs; another one may not.
  /usr/bin/python3 - "$schema" <<'EOF' || fail 'SARIF is not as its schema says'
import json, sys, jsonschema
log = json.load(open("found.sarif"))
jsonschema.validate(log, json.load(open(sys.argv[1])))
assert log["runs"][0]["columnKind"] == "unicodeCodePoints"
notes = log["runs"][0]["invocations"][0]["toolExecutionNotifications"]
assert [note["message"]["text"] for note in notes] == ["and 3 more of QL212"], notes
EOF
else
  left_out+=('the schema of SARIF')
fi

/usr/bin/python3 - "$source/editors/problem_matcher.json" <<'EOF' || fail 'the forms do not agree'
import json, re, sys, urllib.parse

pattern = json.load(open(sys.argv[1]))["problemMatcher"][0]["pattern"][0]
matches = [m for m in (re.match(pattern["regexp"], line) for line in open("found.text")) if m]
from_text = [(m[pattern["file"]], int(m[pattern["line"]]), int(m[pattern["column"]]),
              m[pattern["severity"]], m[pattern["message"]], m[pattern["code"]]) for m in matches]
from_json = []
for line in open("found.json"):
    report = json.loads(line)
    for found in report["findings"]:
        from_json.append((report["file"], found["line"], found["column"], found["severity"],
                          found["message"], found["code"]))
assert from_text and from_text == from_json, (from_text, from_json)

levels = {"error": "error", "warning": "warning", "info": "note"}
log = json.load(open("found.sarif"))
from_sarif = []
for result in log["runs"][0]["results"]:
    place = result["locations"][0]["physicalLocation"]
    path = urllib.parse.unquote(place["artifactLocation"]["uri"])
    region = place["region"]
    text = open(path, "rb").read()
    if "startLine" in region:
        lines = text.split(b"\n")
        before = b"\n".join(lines[:region["startLine"] - 1] + [b""]) if region["startLine"] > 1 else b""
        start = text[len(before):region["byteOffset"]].decode(errors="replace")
        assert len(start) + 1 == region["startColumn"], region
    from_sarif.append((path, region["byteOffset"], result["level"], result["ruleId"]))
    rule = log["runs"][0]["tool"]["driver"]["rules"][result["ruleIndex"]]
    assert rule["id"] == result["ruleId"]
wanted = []
for line in open("found.json"):
    report = json.loads(line)
    wanted += [(report["file"], f["offset"], levels[f["severity"]], f["code"])
               for f in report["findings"]]
assert from_sarif == wanted, (from_sarif, wanted)
more = ["more" for line in open("found.json") for _ in json.loads(line)["more"]]
assert len(open("found.github").read().splitlines()) == len(wanted) + len(more)
EOF

if command -v pre-commit >/dev/null && command -v git >/dev/null; then
  mkdir -p hooks project home "$scratch/bin"
  export HOME=$scratch/home PATH=$scratch/bin:$PATH PRE_COMMIT_HOME=$scratch/home/hooks
  export GIT_CONFIG_NOSYSTEM=1 GIT_AUTHOR_NAME=a GIT_AUTHOR_EMAIL=a@b GIT_COMMITTER_NAME=a \
    GIT_COMMITTER_EMAIL=a@b
  ln -s "$program" "$scratch/bin/quill-inp"
  cp "$source/.pre-commit-hooks.yaml" hooks
  git -C hooks init -q
  git -C hooks add .
  git -C hooks commit -qm hooks
  printf 'repos:\n- repo: %s\n  rev: %s\n  hooks:\n  - id: quill-inp-lint\n  - id: quill-inp-fmt\n' \
    "$scratch/hooks" "$(git -C hooks rev-parse HEAD)" >project/.pre-commit-config.yaml
  cp water_optimisation.qin project
  git -C project init -q
  git -C project add .
  (cd project && pre-commit run --all-files >../hooks.log 2>&1) ||
    fail "the hooks refuse a good input: $(cat hooks.log)"
  cp careless.qin project
  git -C project add .
  if (cd project && pre-commit run --all-files >../hooks.log 2>&1); then
    fail 'the hooks accept a careless input'
  fi
  grep -q 'QL[0-9]' hooks.log || fail "the hooks do not say what is wrong: $(cat hooks.log)"
else
  left_out+=('the hooks of pre-commit')
fi

echo "the forms agree${left_out[*]:+; not checked: ${left_out[*]}}"
