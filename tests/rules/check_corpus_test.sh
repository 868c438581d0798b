#!/bin/sh
# Tries check_corpus.sh on a small corpus, and on the same with one thing wrong.
set -eu

check=$(dirname "$0")/check_corpus.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/samples.sh"

make_corpus() {
  rm -rf "$scratch/corpus"
  mkdir -p "$scratch/corpus/parse" "$scratch/corpus/edit"
  printf '#opt' >"$scratch/corpus/parse/a"
  printf '#sp' >"$scratch/corpus/parse/b"
  printf '0 1\n' >"$scratch/corpus/edit/c"
  echo '3 inputs with 11 bytes, for 2 targets' >"$scratch/page"
}

# judge accepted|refused WHAT
judge() {
  expect "$1" "$2" sh "$check" "$scratch/corpus" "$scratch/page" parse edit
}

make_corpus
judge accepted 'nothing is wrong'

make_corpus
rm "$scratch/corpus/edit/c"
echo '2 inputs with 7 bytes, for 2 targets' >"$scratch/page"
judge refused 'a target has no inputs'

make_corpus
rm -r "$scratch/corpus/edit"
echo '2 inputs with 7 bytes, for 2 targets' >"$scratch/page"
judge refused 'a target has no folder'

make_corpus
: >"$scratch/corpus/parse/b"
echo '3 inputs with 8 bytes, for 2 targets' >"$scratch/page"
judge refused 'an input is empty'

make_corpus
rm "$scratch/corpus/parse/b"
judge refused 'an input is missing'

make_corpus
printf '#so' >"$scratch/corpus/parse/d"
judge refused 'an input is not counted'

make_corpus
printf '#spx' >"$scratch/corpus/parse/b"
judge refused 'an input has another size'

end_of_samples
