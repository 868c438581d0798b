#!/bin/sh
# Tries run_paths.sh on small libraries with run paths that are right and wrong:
#
#   run_paths_test.sh COMPILER
set -eu

compiler=$1
check=$(dirname "$0")/run_paths.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# judge accepted|refused RUN_PATH [OPTION]: a library with this run path, or none if it is empty.
judge() {
  rm -rf "$scratch/folder"
  mkdir "$scratch/folder"
  echo "int answer = 42;" |
    "$compiler" -shared -fPIC -x c++ - -o "$scratch/folder/answer.so" ${2:+"-Wl,-rpath,$2"}
  verdict=refused
  # The option is one word or none.
  # shellcheck disable=SC2086
  if sh "$check" ${3:-} "$scratch/folder" >/dev/null 2>&1; then verdict=accepted; fi
  if [ "$verdict" != "$1" ]; then
    echo "the run path '$2' is $verdict with ${3:-no option}" >&2
    failures=$((failures + 1))
  fi
}

# The linker replaces no name in a run path, the dynamic linker does.
# shellcheck disable=SC2016
for path in '$ORIGIN' '$ORIGIN/../lib' '$ORIGIN:$ORIGIN/../lib'; do
  judge accepted "$path"
  judge accepted "$path" --each
  judge refused "$path" --none
done
# shellcheck disable=SC2016
for path in '$ORIGIN:' ':$ORIGIN' '$ORIGIN::$ORIGIN/../lib' '$ORIGINAL' lib ../lib /usr/lib \
  '$ORIGIN:/usr/lib' '$ORIGIN:lib'; do
  judge refused "$path"
  judge refused "$path" --each
done
judge accepted ''
judge accepted '' --none
judge refused '' --each

rm -rf "$scratch/folder"
mkdir "$scratch/folder"
if sh "$check" "$scratch/folder" 2>/dev/null; then
  echo "a folder without libraries is accepted" >&2
  failures=$((failures + 1))
fi

if [ "$failures" -ne 0 ]; then exit 1; fi
echo "every run path is judged as it should be"
