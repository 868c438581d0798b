#!/bin/sh
# Tries needed_libraries.sh on a small library that needs another one:
#
#   needed_libraries_test.sh COMPILER
set -eu

compiler=$1
check=$(dirname "$0")/needed_libraries.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/../../rules/samples.sh"

# library NAME FLAG...: one with a single function, which the C library's start files make need it.
library() {
  name=$1
  shift
  echo "int $name() { return 42; }" |
    "$compiler" -shared -fPIC -x c++ - -x none -o "$scratch/lib$name.so" -Wl,--no-as-needed "$@"
}
library one -Wl,-soname,libone.so.1
library two "$scratch/libone.so"

# judge accepted|refused LINE: the library that needs another, with this line in the list.
judge() {
  printf '%s\n' 'any: ld-linux-x86-64.so.2 libc.so.6 libgcc_s.so.1 libm.so.6 libstdc++.so.6' "$2" \
    >"$scratch/list"
  expect "$1" "the line '$2'" sh "$check" "$scratch/list" "$scratch/libtwo.so"
}

judge accepted 'libtwo: libone.so.1'
judge refused 'libtwo:'
judge refused 'libtwo: libone.so.2'
judge refused 'libtwo: libone.so.1 libzero.so.1'
judge refused 'libtwox: libone.so.1'
judge refused 'xlibtwo: libone.so.1'
judge refused ''

end_of_samples
