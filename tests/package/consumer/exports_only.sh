#!/bin/sh
# Fails unless a library exports exactly one function:
#
#   exports_only.sh LIBRARY FUNCTION
set -eu
exported=$(nm --dynamic --defined-only --demangle "$1" | sed 's/^[^ ]* //')
if [ "$exported" != "T $2" ]; then
  printf '%s exports, besides %s:\n%s\n' "$1" "$2" "$exported" >&2
  exit 1
fi
