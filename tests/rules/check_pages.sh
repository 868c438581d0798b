#!/bin/sh
# Fails when a page names a script that is not there or cannot be started:
#
#   check_pages.sh TREE
set -eu
export LC_ALL=C

tree=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cd "$tree"
find . \( -path ./build -o -path ./.git -o -name node_modules \) -prune -o -name '*.md' -print >"$scratch/pages"
printf '%s\n' CMakePresets.json >>"$scratch/pages"
# A name ends before a full stop that ends its sentence. grep fails when no page names a script, which is
# told of below.
xargs grep -noE '(^|[^./[:alnum:]_-])(scripts/[[:alnum:]_./-]*[[:alnum:]_]|\.ci/[[:alnum:]_]+)' \
  <"$scratch/pages" >"$scratch/named" || true
if [ ! -s "$scratch/named" ]; then
  echo "no page of $tree names a script" >&2
  exit 1
fi

failures=0
while IFS= read -r line; do
  script=$(printf '%s\n' "$line" | grep -oE '(scripts|\.ci)/.*$')
  [ -d "$script" ] && continue
  # What other scripts read or call through an interpreter needs no right to be started.
  case $script in
    scripts/support/*) [ -f "$script" ] && continue ;;
  esac
  [ -x "$script" ] && continue
  echo "${line%%:*}: names $script, which is not there or cannot be started" >&2
  failures=$((failures + 1))
done <"$scratch/named"
[ "$failures" -eq 0 ] || exit 1
echo "$(wc -l <"$scratch/named") names of scripts are right"
