#!/usr/bin/env bash
# Runs a script that measures, and puts the figures that it prints into the page that shows them.
#
#   scripts/figures.sh properties               the statements that the tests check, in SECURITY.md
#   scripts/figures.sh fuzz RUNS [TARGET...]    the runs of these fuzz targets
#   scripts/figures.sh mutants                  the changes of the sources that the tests notice
#   scripts/figures.sh scale                    the largest texts
#   scripts/figures.sh bench                    the table of docs/performance.md
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

what=${1:-}
shift $(($# > 0 ? 1 : 0))
printed=build/figures/$what.txt

measure() { "$@" | tee "$printed"; }
put() { python3 scripts/support/figures.py "$@"; }

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
    sed -n '/^what /,$p' "$printed" | put docs/performance.md bench
    ;;
  *)
    sed -n '4,8s/^# *//p' "$0" >&2
    exit 2
    ;;
esac
