#!/bin/sh
# Fails when functions in compiled objects call themselves, directly or through others: a text must not
# decide how deep the stack gets. Names every function in such a circle.
#
#   check_recursion.sh OBJDUMP OBJECT...
set -eu
export LC_ALL=C

objdump=$1
shift
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# A call to a function of the same section is shown with its name, any other one by a relocation in
# the next line. Until it is relocated, such a call seems to be one to what comes after it, which is
# the next function if a function ends with it. An offset after the name means a jump into a function.
"$objdump" --disassemble --reloc --no-show-raw-insn "$@" >"$scratch/code"
awk '
  function tell() { if (call != "") print call; call = "" }
  /^[0-9a-f]+ <.*>:$/ { tell(); caller = substr($2, 2, length($2) - 3); next }
  /^[ \t]+[0-9a-f]+:[ \t]+R_[A-Z0-9_]+/ {
    call = ""
    callee = $NF
    sub(/-0x4$/, "", callee)
    if (is_call && callee !~ /^\.|[-+]0x/) print caller, callee
    next
  }
  {
    tell()
    is_call = $2 ~ /^(call|jmp|b|bl)q?$/
    if (is_call && $NF ~ /^<[^+]*>$/) call = caller " " substr($NF, 2, length($NF) - 2)
  }
  END { tell() }
' "$scratch/code" | sed 's/@plt//' | sort -u >"$scratch/calls"
if [ ! -s "$scratch/calls" ]; then
  echo "there are no calls in $*" >&2
  exit 1
fi

# tsort ignores a line with the same name twice, and names circles of different ones. It fails when
# there is a circle, and grep fails when there is none; the file says which it was. std::sort may call
# itself: it is no deeper than twice the logarithm of the number of elements.
{
  awk '$1 == $2 { print $1 }' "$scratch/calls"
  tsort "$scratch/calls" 2>&1 >"$scratch/order" | sed -n 's/^tsort: \([^ ]*\)$/\1/p'
} | grep kelp | grep -v '^_ZSt16__introsort_loop' | sort -u >"$scratch/circles" || true

if [ -s "$scratch/circles" ]; then
  echo "these functions call themselves, or one another in a circle:" >&2
  c++filt <"$scratch/circles" >&2
  exit 1
fi
echo "$(cut -d ' ' -f 1 "$scratch/calls" | sort -u | wc -l) functions, none of them recursive"
