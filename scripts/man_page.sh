#!/usr/bin/env bash
# Makes docs/man/quill-inp.1 from what the tool and each of its verbs print for --help.
#
#   man_page.sh            writes the page
#   man_page.sh --check    fails when the page in the tree is out of date or badly formed
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/tool.sh

need_packages help2man man-db groff-base
build_tool

build=build/man
page=docs/man/quill-inp.1
mkdir -p "$build"
scripts/support/write_man_page.sh "$tool" >"$build/quill-inp.1"

LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l "$build/quill-inp.1" \
  2>"$build/man_warnings" >"$build/man_text"
if [ -s "$build/man_warnings" ]; then
  cat "$build/man_warnings" >&2
  exit 1
fi

if [ "${1:-}" = --check ]; then
  diff "$page" "$build/quill-inp.1" ||
    { echo "$page is out of date: run scripts/man_page.sh" >&2; exit 1; }
  echo "$page is up to date"
else
  cp "$build/quill-inp.1" "$page"
  echo "$page is written"
fi
