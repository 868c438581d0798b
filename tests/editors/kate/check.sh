#!/usr/bin/env bash
# Highlights the example inputs and those of tests/editors with the definition for Kate, by the program of
# KDE's library, and compares what it shows with the checked-in text. Run with --refresh to write this; read
# the difference then.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
folder=tests/editors/kate
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

xmllint --noout editors/kate/quill.xml
/usr/bin/python3 -c 'import json, sys; json.load(open(sys.argv[1]))' editors/kate/lspclient.json
mkdir -p "$scratch/org.kde.syntax-highlighting/syntax"
cp editors/kate/quill.xml "$scratch/org.kde.syntax-highlighting/syntax"

# A word of the theme's colours in place of each: type, keyword, and so on.
show() {
  XDG_DATA_HOME=$scratch QT_QPA_PLATFORM=offscreen kate-syntax-highlighter --theme "Breeze Light" \
    --syntax "QUILL input" "$1" 2>"$scratch/errors" |
    sed -n '/<pre>/,/<\/pre>/p' | sed -e '1d' -e '$d' -e 's/<span style="\([^"]*\)">/[\1 /g' -e 's:</span>:]:g' \
    -e 's/color:#006e28;/hash/g' -e 's/color:#644a9b;/command/g' -e 's/color:#ca60ca;/operator/g' \
    -e 's/color:#aa5500;/value/g' -e 's/color:#0057ae;/type/g' -e 's/color:#bf0303;text-decoration:underline;/error/g' \
    -e 's/color:#bf0303;/string/g' -e 's/font-weight:bold;/keyword/g' -e 's/color:#b08000;/number/g' \
    -e 's/color:#ff5500;/path/g' -e 's/color:#898887;/raw/g'
}

status=0
for input in examples/inputs/*.qin tests/editors/*.qin; do
  expected=$folder/shown/$(basename "$input" .qin).txt
  show "$input" >"$scratch/shown"
  if [ -s "$scratch/errors" ]; then cat "$scratch/errors" >&2; status=1; fi
  if [ "${1:-}" = --refresh ]; then
    cp "$scratch/shown" "$expected"
  elif ! diff -u "$expected" "$scratch/shown"; then
    status=1
  fi
done
[ "$status" -eq 0 ] && echo "Kate shows the inputs as expected"
exit "$status"
