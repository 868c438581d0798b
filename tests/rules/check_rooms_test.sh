#!/bin/sh
# Tries check_rooms.sh on a small project that keeps to its table, and on the same with one thing
# wrong.
set -eu
export LC_ALL=C

check=$(cd "$(dirname "$0")" && pwd)/check_rooms.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# file PATH LINE: a file of the project with one line.
file() {
  mkdir -p "$scratch/project/$(dirname "$1")"
  printf '%s\n' "$2" >"$scratch/project/$1"
}

make_project() {
  rm -rf "$scratch/project"
  file include/kelp/a.hpp '#include <string>'
  file src/top/top.cpp '#include "low/low.hpp"'
  file src/low/low.hpp '#include "kelp/a.hpp"'
  file sisters/one/own.hpp '// nothing'
  file sisters/one/own.cpp '#include "own.hpp"'
  file lossless/edit/text.cpp '#include "edit/text.hpp"'
  file lossless/edit/text.hpp '#include "kelp/a.hpp"'
  file python/core/module.cpp '#include "core/tree.hpp"'
  file python/core/tree.hpp '#include "kelp/a.hpp"'
  file tools/quill-inp/main.cpp '#include "quill-inp/verbs/verb.hpp"'
  file tools/quill-inp/verbs/verb.hpp '#include "kelp/a.hpp"'
  printf '%s\n' '# A table.' 'src/top: src/low' 'src/low: include' \
    'python/core: include' \
    'tools/quill-inp: tools/quill-inp/verbs' 'tools/quill-inp/verbs: include' 'lossless: include' 'include:' \
    'sisters:' >"$scratch/table"
}

# is_refused WORDS: the project is, with these words.
is_refused() {
  if output=$(sh "$check" "$scratch/project" "$scratch/table" 2>&1); then
    echo "passes, without: $1" >&2
    failures=$((failures + 1))
    return
  fi
  case $output in
    *"$1"*) ;;
    *)
      printf 'for: %s\nthis is said: %s\n' "$1" "$output" >&2
      failures=$((failures + 1))
      ;;
  esac
}

# is_refused_with PATH LINE WORDS: the project is, when this file is added or put in place of another.
is_refused_with() {
  make_project
  file "$1" "$2"
  is_refused "$3"
}

make_project
sh "$check" "$scratch/project" "$scratch/table" >/dev/null || failures=$((failures + 1))

file src/low/back.cpp '#include "top/top.hpp"'
file src/top/top.hpp '// nothing'
is_refused 'src/low/back.cpp:1: src/low may not include src/top'

is_refused_with src/top/other.cpp '#include "kelp/a.hpp"' \
  'src/top/other.cpp:1: src/top may not include include'
is_refused_with src/top/other.cpp '#include "low/missing.hpp"' \
  'src/top/other.cpp:1: there is no "low/missing.hpp"'
is_refused_with src/new/new.cpp '// nothing' 'src/new/new.cpp: is in no folder of the table'
is_refused_with src/top/top.cpp '// nothing' 'src/top: no file includes one of src/low'

make_project
printf 'src/late: src/top\n' >>"$scratch/table"
file src/late/late.cpp '#include "top/top.hpp"'
file src/top/top.hpp '// nothing'
is_refused 'src/late: src/top is not below it'

make_project
file src/low/low.hpp '#include "low/lower.hpp"'
file src/low/lower.hpp '#include "low/low.hpp"'
file src/low/low.cpp '#include "kelp/a.hpp"'
is_refused 'in a circle'

make_project
rooms='1 2 3 4 5 6 7 8'
for room in $rooms; do
  next=$((room + 1))
  file "tools/quill-inp/$room/a.hpp" "#include \"quill-inp/$next/a.hpp\""
  printf 'tools/quill-inp/%s: tools/quill-inp/%s\n' "$room" "$next" >>"$scratch/table"
done
file tools/quill-inp/9/a.hpp '// nothing'
printf 'tools/quill-inp/9:\n' >>"$scratch/table"
sed -i 's#^tools/quill-inp: #&tools/quill-inp/1 #' "$scratch/table"
file tools/quill-inp/run.cpp '#include "quill-inp/1/a.hpp"'
is_refused 'tools/quill-inp: a chain of 10 folders'

rm -rf "$scratch/project"
mkdir -p "$scratch/project/include" "$scratch/project/src" "$scratch/project/sisters" "$scratch/project/lossless" "$scratch/project/tools"
is_refused 'there are no sources'

if [ "$failures" -ne 0 ]; then
  echo "$failures projects are not judged as they should be" >&2
  exit 1
fi
echo "every project is judged as it should be"
