#!/usr/bin/env bash
# Compiles a file and compares the errors with those that it names: a line that ends in
# "// error: TEXT" has an error with this text, and no other line has any.
#
#   compile_errors.sh SOURCE COMPILER [OPTION...]
set -euo pipefail
export LC_ALL=C
source=$1
shift

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

sed -n 's|^.*  // error: \(.*\)$|\1|p' "$source" | sort -u >"$scratch/texts"
if [ "$(wc -l <"$scratch/texts")" -ne 1 ]; then
  echo "$source does not name one text of errors" >&2
  exit 1
fi
grep -n '  // error: ' "$source" | cut -d: -f1 >"$scratch/expected"

if "$@" -fsyntax-only -Wall -Wextra -Werror "$source" 2>"$scratch/errors"; then
  echo "$source compiles" >&2
  exit 1
fi
# A call may get a second error, of what follows from the first. But each has the one that is named,
# and an error in another file has a line of its own here.
grep -E ': (fatal )?error: ' "$scratch/errors" >"$scratch/all"
sed -n "s|^$source:\([0-9]*\):.*$|\1|p" "$scratch/all" | sort -un >"$scratch/lines"
# grep fails when every message is about the source, which is the usual case.
grep -vF "$source:" "$scratch/all" >>"$scratch/lines" || true
grep -F -f "$scratch/texts" "$scratch/all" | cut -d: -f2 | sort -un >"$scratch/named"

diff -u "$scratch/expected" "$scratch/lines" && diff -u "$scratch/expected" "$scratch/named" || {
  echo "lines of $source: '-' compiles or fails for another reason, '+' must compile" >&2
  cat "$scratch/all" >&2
  exit 1
}
echo "$(wc -l <"$scratch/expected") lines fail as they must"
