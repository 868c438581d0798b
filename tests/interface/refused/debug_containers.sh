#!/usr/bin/env bash
# A program with the containers of the standard library's debug mode must not link with a library
# without them, since each would misread the other's vectors; the linker's message names the cause.
#
#   debug_containers.sh LIBRARY COMPILER [OPTION...]
set -euo pipefail
library=$1
shift

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cat >"$scratch/program.cpp" <<'PROGRAM'
#include "kelp/input/quill/document.hpp"

int main() {
  const kelp::input::quill::QuillInput input;
  return input.commands.empty() ? 0 : 1;
}
PROGRAM

# link_errors [OPTION...]: what the linker says. It may also miss what only the library's own build
# links, such as a sanitizer.
link_errors() {
  # Most of these programs must not link: what the linker said is what is compared.
  "${compile[@]}" "$@" "$scratch/program.cpp" "$library" -o "$scratch/program" 2>&1 || true
}

compile=("$@")
name=is_compiled_with_glibcxx_debug
if link_errors | grep "$name"; then
  echo "a program without the debug mode asks for its library" >&2
  exit 1
fi
link_errors -D_GLIBCXX_DEBUG | grep "undefined reference to .*$name"
