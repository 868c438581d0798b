#!/usr/bin/env bash
# Makes the corpus of all fuzz targets, or of the named ones, again: from the inputs in it and those
# that the last scripts/fuzz.sh has found, it keeps as few as reach the same code. Packs them as
# fuzz/corpus.tar.xz, and puts their number and size into SECURITY.md.
#
#   scripts/fuzz_corpus.sh [TARGET...]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/fuzz_targets.sh

if [ $# -eq 0 ]; then set -- "${fuzz_targets[@]}"; fi
for target in "$@"; do check_fuzz_target "$target"; done

need_packages xz-utils
build_fuzz_targets

for target in "$@"; do
  log=build/fuzz/$target.merge.log
  kept=build/fuzz/kept/$target
  rm -rf "$kept"
  mkdir -p "$kept" "build/fuzz/new/$target"
  if ! "build/fuzz/fuzz/kelp_quill_inp_fuzz_$target" -set_cover_merge=1 -use_counters=0 \
    "$kept" "$corpus/$target" "build/fuzz/new/$target" >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    echo "The whole output is in $log." >&2
    exit 1
  fi
  rm -rf "${corpus:?}/$target"
  cp -r "$kept" "$corpus/$target"
  printf '%-18s %s inputs\n' "$target" "$(find "$corpus/$target" -type f | wc -l)"
done
pack_corpus

find "${fuzz_targets[@]/#/$corpus/}" -type f -printf '%s\n' |
  awk -v targets="${#fuzz_targets[@]}" '{ bytes += $1 }
    END { print NR " inputs with " bytes " bytes, for " targets " targets" }' |
  /usr/bin/python3 scripts/support/figures.py SECURITY.md corpus
