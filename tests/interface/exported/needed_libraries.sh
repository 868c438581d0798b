#!/bin/sh
# Compares the libraries that programs and libraries need with a list:
#
#   needed_libraries.sh LIST FILE...
#
# A line of the list has the name of a file, without version, a colon and the libraries that it needs.
# Those on the line "any" belong to compilers and systems, which decide what of them a file needs.
set -eu
export LC_ALL=C

list=$1
shift
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# listed NAME: the libraries on its line, one on each; fails if the name has no line.
listed() {
  sed -n "s/^$1: *//p;s/^$1:\$//p" "$list" | grep '' | tr -s ' ' '\n' | sed '/^$/d' | sort
  grep -q "^$1:" "$list"
}

listed any >"$scratch/any"
for file in "$@"; do
  name=$(basename "$file")
  name=${name%%.so*}
  readelf --dynamic --wide "$file" | sed -n 's/.*(NEEDED).*\[\(.*\)\]$/\1/p' | sort >"$scratch/all"
  if [ ! -s "$scratch/all" ]; then
    echo "$file needs no library at all, which cannot be" >&2
    exit 1
  fi
  if ! listed "$name" >"$scratch/expected"; then
    echo "$list has no line for $name" >&2
    failures=$((failures + 1))
    continue
  fi
  comm -23 "$scratch/all" "$scratch/any" >"$scratch/own"
  diff -u --label "in the list for $name" --label "needed" "$scratch/expected" "$scratch/own" >&2 ||
    failures=$((failures + 1))
done
[ "$failures" -eq 0 ] || exit 1
echo "$# files need the libraries in the list"
