#!/bin/sh
# Compares the symbols that a shared library exports with a list of them:
#
#   exported_symbols.sh [--refresh] NM LIBRARY LIST
#
# Programs may begin to rely on an additional symbol, and a missing symbol breaks programs that use it.
# After an intended change, --refresh rewrites the list; the build target
# kelp_quill_inp_refresh_exported_symbols does so for all lists. Constructors and destructors have
# several symbols with the same name, which is in the list once.
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
