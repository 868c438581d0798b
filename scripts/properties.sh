#!/usr/bin/env bash
# Runs the tests of what is true for every input, and says how many they are and how many statements
# about inputs they have checked.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}" python3

programs=(kelp_quill_inp_{properties,line_properties,fault_properties}_test)
reports=build/dev/properties
build_preset dev "${programs[@]}"
mkdir -p "$reports"
for program in "${programs[@]}"; do
  quietly "$reports/$program.log" "build/dev/tests/properties/$program" --gtest_brief=1 \
    --gtest_output="json:$reports/$program.json"
done

/usr/bin/python3 - "${programs[@]/#/$reports/}" <<'PYTHON'
import json
import sys

reports = [json.load(open(path + ".json")) for path in sys.argv[1:]]
print(sum(report["tests"] for report in reports), "tests check",
      sum(int(report["statements"]) for report in reports), "statements about inputs")
PYTHON
