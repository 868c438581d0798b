#!/usr/bin/env bash
# Installs what is missing, builds the libraries and the benchmarks with optimisation and prints one
# table: the cost of the library compared with other ways to do the same. See docs/performance.md.
#
#   scripts/bench.sh             the table
#   scripts/bench.sh --times     how long reading and writing take on this machine
#   scripts/bench.sh --check     fails when a figure is above its limit
#   scripts/bench.sh --only read --rounds 101
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${tool_packages[@]}" libbenchmark-dev pybind11-dev python3-ase python3-dev python3-numpy \
  python3-pandas python3-rdkit

echo "Building in build/bench ..."
build_preset bench
if [ "${1:-}" = --times ]; then exec build/bench/bench/kelp_quill_inp_times; fi
status=0
build/bench/bench/kelp_quill_inp_ratios "$@" || status=$?
PYTHONPATH=build/bench/python /usr/bin/python3 -W ignore bench/python/ratios.py \
  build/bench/bench/kelp_quill_inp_bench_calls "$@" || status=$?
exit "$status"
