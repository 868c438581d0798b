#!/usr/bin/env bash
# Checks the built site as its readers use it: every link and anchor has a target, nothing comes from
# another host, and pages open in a browser with their title and navigation and without an error on its
# console.
#
#   check_site.sh SITE
set -euo pipefail
site=$(realpath "$1")
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

# open_page FILE: writes the page as the browser has it to $scratch/page, and errors to /console.
open_page() {
  chromium --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$scratch/profile" --enable-logging=stderr --dump-dom "file://$1" \
    >"$scratch/page" 2>"$scratch/log" || fail "$1 does not open: $(tail -n 5 "$scratch/log")"
  # grep fails when the console is silent, as it should be.
  grep ':CONSOLE' "$scratch/log" >"$scratch/console" || true
}

# Checks that errors on the console are found at all: this page has one.
echo '<script>console.error("a complaint")</script>' >"$scratch/complaint.html"
open_page "$scratch/complaint.html"
grep -q 'a complaint' "$scratch/console" || fail "the browser's console is not heard"

# check_page FILE TITLE
check_page() {
  open_page "$site/$1"
  grep -qF "<title>$2</title>" "$scratch/page" || fail "$1 has not the title '$2'"
  grep -q '<nav aria-label="Pages">' "$scratch/page" || fail "$1 has no navigation"
  if [ -s "$scratch/console" ]; then fail "$1: $(cat "$scratch/console")"; fi
}

check_page index.html libkelp_quill_inp
check_page format.html 'The QUILL format'
check_page quill-inp.html quill-inp
check_page findings.html 'Findings of the linter'
check_page ql104.html 'QL104: a line that ends the atoms too early'
check_page classkelp_1_1input_1_1quill_1_1InputEditor.html 'InputEditor Class Reference'
echo "pages open in a browser without an error"
