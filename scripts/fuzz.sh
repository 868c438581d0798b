#!/usr/bin/env bash
# Builds the fuzz targets and runs each a number of times, under the address and undefined behaviour
# sanitizers. Prints a line for each and fails when one of them finds something.
#
#   scripts/fuzz.sh [RUNS] [TARGET...]
#
# The default is 20000 runs of every target. The runs are the same every time;
# KELP_QUILL_INP_FUZZ_SEED=2 makes them different. Inputs that reach new code are kept in
# build/fuzz/new/, for scripts/fuzz_corpus.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/fuzz_targets.sh

runs=${1:-20000}
shift $(($# > 0 ? 1 : 0))
if [ $# -eq 0 ]; then set -- "${fuzz_targets[@]}"; fi
for target in "$@"; do check_fuzz_target "$target"; done

build_fuzz_targets
for target in "$@"; do need_corpus "$target"; done

# Stacks of allocations are not recorded, and freed memory is not kept for long: that would double the
# time, and a finding that is run again alone has both.
asan=malloc_context_size=0:quarantine_size_mb=4:thread_local_quarantine_size_kb=256
export ASAN_OPTIONS=$asan${ASAN_OPTIONS:+:$ASAN_OPTIONS}

status=0
for target in "$@"; do
  new=build/fuzz/new/$target
  log=build/fuzz/$target.log
  rm -rf "$new"
  mkdir -p "$new"
  if "build/fuzz/fuzz/kelp_quill_inp_fuzz_$target" \
    -runs="$runs" -seed="${KELP_QUILL_INP_FUZZ_SEED:-1}" -max_len="$(longest_input "$target")" \
    -timeout=20 -rss_limit_mb=4096 -entropic=0 -dict=fuzz/quill.dict \
    -artifact_prefix="build/fuzz/$target-" \
    "$new" "$corpus/$target" fuzz/seeds fuzz/findings examples/inputs >"$log" 2>&1; then
    printf '%-18s %10s runs with up to %3s bytes, nothing found\n' \
      "$target" "$runs" "$(longest_input "$target")"
  else
    status=1
    printf '%-18s has found something\n' "$target" >&2
    grep -A 1 -E 'does not hold|^SUMMARY|Test unit written' "$log" >&2 || tail -n 20 "$log" >&2
    echo "The whole output is in $log. The same again, with all stacks:" >&2
    echo "  build/fuzz/fuzz/kelp_quill_inp_fuzz_$target FILE" >&2
  fi
done
exit "$status"
