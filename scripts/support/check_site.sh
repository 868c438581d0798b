#!/usr/bin/env bash
# Checks the built site as its readers use it: every link and anchor has a target, nothing comes from
# another host, and the tests of tests/site open the pages in a browser.
#
#   check_site.sh SITE TOOLS
#
# TOOLS is the folder with the packages of docs/site/package-lock.json.
set -euo pipefail
site=$(realpath "$1")
tools=$(realpath "$2")
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
  echo "$*" >&2
  exit 1
}

linkchecker --no-status --config docs/site/linkchecker.ini "file://$site/index.html" \
  >"$scratch/links" 2>&1 || fail "$(grep -v '^INFO' "$scratch/links")"
tail -n 2 "$scratch/links" | head -n 1

if grep -nE '<(link|script|img|iframe)[^>]*(href|src)="(https?:)?//' "$site"/*.html; then
  fail "a page loads a part from another host"
fi

# Node looks for packages in the folders above a module.
rm -rf "$tools/tests"
cp -r tests/site "$tools/tests"
KELP_QUILL_INP_SITE=$site node --test --test-reporter=spec "$tools"/tests/*_test.mjs \
  >"$scratch/tests" 2>&1 || fail "$(cat "$scratch/tests")"
grep -E '^. (pass|duration)' "$scratch/tests"
