#!/bin/sh
# Fails when a page in a folder links to a file that is not there:
#
#   links_of_pages.sh FOLDER
set -eu

folder=$1
if [ ! -f "$folder/README.md" ]; then
  echo "$folder has no README.md" >&2
  exit 1
fi

dead=$(find "$folder" -name '*.md' | while IFS= read -r page; do
  grep -o '](\([^)]*\))' "$page" | sed -e 's/^](//' -e 's/[#)].*$//' |
    grep -v -e '^[a-z]*:' -e '^$' | while IFS= read -r link; do
    if [ ! -e "$(dirname "$page")/$link" ]; then echo "$page: $link"; fi
  done
done)
if [ -n "$dead" ]; then
  printf 'links that lead nowhere:\n%s\n' "$dead" >&2
  exit 1
fi
