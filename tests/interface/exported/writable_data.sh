#!/bin/sh
# Fails when a shared library has writable data of its own:
#
#   writable_data.sh NM LIBRARY
#
# State that outlives a call would tie the threads and the documents of a program together. Data in
# .data.rel.ro does not count: it is constant from the moment at which the library is loaded.
set -eu
export LC_ALL=C

nm=$1
library=$2

# What the tool chain adds to every library:
#   completed.0           whether the library was taken down, kept by the C runtime's start files
#   __dso_handle          the library's name for itself towards the C runtime, its own address
#   __TMC_END__           the end of a table for transactional memory, empty
#   __bss_start, _edata, _end
#                         where the linker's sections begin and end
#   DW.ref.*              addresses of what the exception tables refer to (the C++ runtime's handler
#                         and the types that are caught), filled in on loading
#   ...rounds_to_nearest...fmin
#                         a number of fast_float's that nobody writes, volatile so that the compiler
#                         does not compute with it
tool_chain='_ZZN10fast_float6detail17rounds_to_nearestEvE4fmin|completed\.0|__dso_handle|__TMC_END__|__bss_start|_edata|_end|DW\.ref\..*'

table=$("$nm" --format=sysv "$library")
# The columns are the name, the value, the class, the type, the size, the line and the section.
symbols=$(printf '%s\n' "$table" | sed -n 's/^\([^|]*[^| ]\) *|.*|\([^|]*\)$/\2 \1/p')

if ! printf '%s\n' "$symbols" | grep -q '^\.text '; then
  echo "$library has no table of symbols to look through" >&2
  exit 1
fi

own=$(printf '%s\n' "$symbols" | grep -E '^\.(t|l)?(data|bss)(\..*)? ' |
  grep -v '^\.data\.rel\.ro' | grep -vE "^[^ ]* ($tool_chain)$" || true)
if [ -n "$own" ]; then
  echo "$library has writable data:" >&2
  printf '%s\n' "$own" >&2
  exit 1
fi
