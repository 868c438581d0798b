#!/bin/sh
# Compares the symbols that a shared library exports with a list of them:
#
#   exported_symbols.sh [--refresh] NM LIBRARY LIST
#
# A symbol more is one that programs may come to rely on, a symbol less breaks those that do. After
# a change that is meant, --refresh rewrites the list; the build target
# kelp_quill_inp_refresh_exported_symbols does so for all lists. Constructors and destructors have
# several symbols of one name and stand in the list once.
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

table=$("$nm" --dynamic --defined-only --demangle "$library")
# Each line holds an address, a letter for the type, and the name, which may contain blanks.
exported=$(printf '%s\n' "$table" | sed 's/^[^ ]* [^ ] //' | sort -u)

if [ "$refresh" = yes ]; then
  printf '%s\n' "$exported" >"$list"
else
  printf '%s\n' "$exported" | diff -u --label "in the list" --label "exported" "$list" -
fi
