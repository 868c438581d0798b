#!/bin/sh
# Tries run_paths.sh on small libraries with run paths that are right and wrong:
#
#   run_paths_test.sh COMPILER
set -eu

compiler=$1
check=$(dirname "$0")/run_paths.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/../../rules/samples.sh"

# judge accepted|refused RUN_PATH [OPTION]: a library with this run path, or none if it is empty.
judge() {
  rm -rf "$scratch/folder"
  mkdir "$scratch/folder"
  echo "int answer = 42;" |
    "$compiler" -shared -fPIC -x c++ - -o "$scratch/folder/answer.so" ${2:+"-Wl,-rpath,$2"}
  # The option is one word or none.
  # shellcheck disable=SC2086
  expect "$1" "the run path '$2' with ${3:-no option}" sh "$check" ${3:-} "$scratch/folder"
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
expect refused 'a folder without libraries' sh "$check" "$scratch/folder"

end_of_samples
