#!/usr/bin/env bash
# Runs a script that measures, and puts the figures that it prints into the page that shows them.
#
#   scripts/figures.sh properties               the statements that the tests check, in SECURITY.md
#   scripts/figures.sh fuzz RUNS [TARGET...]    the runs of these fuzz targets
#   scripts/figures.sh mutants                  the changes of the sources that the tests notice
#   scripts/figures.sh scale                    the largest texts
#   scripts/figures.sh bench [OPTION...]        the tables of docs/performance.md
#   scripts/figures.sh times                    the times at its beginning
#   scripts/figures.sh --again WHAT [...]       measures nothing, and takes what was printed last time
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

is_again=
if [ "${1:-}" = --again ]; then
  is_again=yes
  shift
fi
what=${1:-}
shift $(($# > 0 ? 1 : 0))
printed=build/figures/$what.txt

measure() {
  if [ "$is_again" ]; then cat "$printed"; else "$@" | tee "$printed"; fi
}
put() { /usr/bin/python3 scripts/support/figures.py "$@"; }

need_packages python3
mkdir -p build/figures
case $what in
  properties)
    measure scripts/properties.sh
    tail -n 1 "$printed" | put SECURITY.md properties
    ;;
  fuzz)
    measure scripts/fuzz.sh "$@"
    grep 'nothing found$' "$printed" | put --rows SECURITY.md fuzz
    ;;
  mutants)
    measure scripts/mutate.sh "$@"
    grep ' mutants, ' "$printed" | put SECURITY.md mutants
    ;;
  scale)
    measure scripts/scale.sh
    sed '1,/^$/d' "$printed" | put SECURITY.md scale
    ;;
  bench)
    measure scripts/bench.sh "$@"
    put --ratios docs/performance.md <"$printed"
    ;;
  times)
    measure scripts/bench.sh --times
    sed 1d "$printed" | put docs/performance.md times
    ;;
  *)
    sed -n '4,10s/^# *//p' "$0" >&2
    exit 2
    ;;
esac
