#!/usr/bin/env bash
# Does what docs/embedding.md says, in new folders next to the tree: builds the plugin, loads, calls and closes
# it, and builds the program of docs/getting-started.md in debug mode.
#
#   projects_of_embedding.sh TREE SCRATCH CXX
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/blocks.sh"
tree=$1
scratch=$2
export CXX=$3
page=$tree/docs/embedding.md

# The numbers of the blocks on the page.
plugin=1
program=2

# build NUMBER: the shell block with this number, in this folder.
build() {
  block_of "$page" sh "$1" >commands
  bash -e commands >output 2>&1 || {
    cat output >&2
    exit 1
  }
}

rm -rf "$scratch"
mkdir -p "$scratch/my_plugin" "$scratch/my_program"
ln -s "$tree" "$scratch/libkelp_quill_inp"

cd "$scratch/my_plugin"
block_of "$page" cmake $plugin >CMakeLists.txt
number=1
while source=$(block_of "$page" cpp $number) && ! grep -q '^extern "C"' <<<"$source"; do
  [ -n "$source" ] || { echo "$page shows no source of a plugin" >&2; exit 1; }
  number=$((number + 1))
done
echo "$source" >my_plugin.cpp
build $plugin
sh "$tree/tests/package/consumer/exports_only.sh" build/libmy_plugin.so canonical_text
/usr/bin/python3 - <<'PROGRAM'
import _ctypes
import ctypes

library = ctypes.CDLL("build/libmy_plugin.so")
canonical_text = library.canonical_text
canonical_text.restype = ctypes.c_size_t
canonical_text.argtypes = [ctypes.c_char_p, ctypes.c_size_t, ctypes.c_char_p, ctypes.c_size_t]


def answer(text, size_of_room):
    room = ctypes.create_string_buffer(size_of_room + 1)
    size = canonical_text(text, len(text), room, size_of_room)
    return room.raw[:size]


assert answer(b"# opt ( tight )", 12) == b"#opt(tight)\n"
assert answer(b"# opt ( tight )", 11) == b""
_ctypes.dlclose(library._handle)
with open("/proc/self/maps") as places:
    assert "libmy_plugin" not in places.read(), "the plugin stays in memory"
PROGRAM

cd "$scratch/my_program"
block_of "$page" cmake $program >CMakeLists.txt
block_of "$tree/docs/getting-started.md" cpp 1 >main.cpp
build $program
build-debug/my_program | diff <(block_of "$tree/docs/getting-started.md" text 1) -
nm --demangle build-debug/my_program | grep is_compiled_with_glibcxx_debug >/dev/null || {
  echo "the libraries are not in debug mode" >&2
  exit 1
}
