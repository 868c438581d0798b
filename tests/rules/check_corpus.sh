#!/bin/sh
# Fails when the inputs of the fuzz targets are not those that a page counts:
#
#   check_corpus.sh CORPUS PAGE TARGET...
#
# A corpus that got lost would look like one in which nothing is found.
set -eu
export LC_ALL=C

corpus=$1
page=$2
shift 2

failures=0
complain() {
  echo "$*" >&2
  failures=$((failures + 1))
}

count=0
bytes=0
for target in "$@"; do
  if [ ! -d "$corpus/$target" ] || [ -z "$(find "$corpus/$target" -type f)" ]; then
    complain "the target $target has no inputs"
    continue
  fi
  count=$((count + $(find "$corpus/$target" -type f | wc -l)))
  bytes=$((bytes + $(find "$corpus/$target" -type f -exec cat {} + | wc -c)))
  if find "$corpus/$target" -type f -empty | grep .; then
    complain "the inputs above are empty"
  fi
done

figure="$count inputs with $bytes bytes, for $# targets"
grep -qFx "$figure" "$page" || complain "$page does not say: $figure"
[ "$failures" -eq 0 ] || exit 1
echo "$figure"
