#!/bin/sh
# Compares the symbols that a shared library exports with a list of them:
#
#   exported_symbols.sh [--refresh] NM LIBRARY LIST
#
# Programs may begin to rely on an additional symbol, and a missing symbol breaks programs that use it.
# After an intended change, --refresh rewrites the list; the build target
# kelp_quill_inp_refresh_exported_symbols does so for all lists. Constructors and destructors have
# several symbols with the same name, which is in the list once. The lists are made with libstdc++; the
# inline namespaces and tags by which standard libraries mark their own classes are not compared.
set -eu
export LC_ALL=C

refresh=no
if [ "$1" = --refresh ]; then
  refresh=yes
  shift
fi
nm=$1
library=$2
list=$3

# The symbols without what tells one standard library from another.
names() { sed -E 's/std::__(cxx11|1)::/std::/g; s/\[abi:[a-z0-9]+\]//g' | sort -u; }

table=$("$nm" --dynamic --defined-only --demangle "$library")
# Each line holds an address, a letter for the type, and the name, which may contain blanks.
exported=$(printf '%s\n' "$table" | sed 's/^[^ ]* [^ ] //' | sort -u)

if [ "$refresh" = yes ]; then
  printf '%s\n' "$exported" >"$list"
else
  list_of_names=$(mktemp)
  trap 'rm -f "$list_of_names"' EXIT
  names <"$list" >"$list_of_names"
  printf '%s\n' "$exported" | names |
    diff -u --label "in the list" --label "exported" "$list_of_names" -
fi
