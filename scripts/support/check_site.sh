#!/usr/bin/env bash
# Checks the built site as its readers use it: the tests of tests/site look at its links and open its pages
# in a browser.
#
#   check_site.sh SITE TOOLS PROGRAM
#
# TOOLS is the folder with the packages of docs/site/package-lock.json. PROGRAM is quill-inp, with which the
# page "Try it" is compared, in a build that has unpacked the corpus of the fuzzers.
set -euo pipefail
site=$(realpath "$1")
tools=$(realpath "$2")
program=$(realpath "$3")
corpus=$(realpath "$(dirname "$3")/../../fuzz/corpus")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Node looks for packages in the folders above a module.
rm -rf "$tools/tests"
cp -r tests/site "$tools/tests"
texts=$PWD/examples/inputs
for target in parse document edit lines lint surgery; do texts+=:$corpus/$target; done
export KELP_QUILL_INP_TREE=$PWD KELP_QUILL_INP_SITE=$site KELP_QUILL_INP_PROGRAM=$program KELP_QUILL_INP_TEXTS=$texts
# Each file has a browser of its own, so that files can run beside one another; but not where times are judged.
jobs=${QUILL_INP_TEST_THOROUGHLY:+1}
if ! node --test --test-concurrency="${jobs:-$(nproc)}" --test-reporter=spec "$tools"/tests/*_test.mjs \
  >"$scratch/tests" 2>&1; then
  cat "$scratch/tests" >&2
  exit 1
fi
grep -E ' (pass|duration_ms) [0-9]' "$scratch/tests"
