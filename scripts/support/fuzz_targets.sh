# Sourced by the scripts in scripts/: the names of the fuzz targets and how they are built; needs
# builds.sh and packages.sh.

fuzz_targets=(parse document edit text lines allocation_faults keys json lint serve surgery)
# Where the build unpacks fuzz/corpus.tar.xz.
corpus=build/fuzz/fuzz/corpus

# check_fuzz_target NAME
check_fuzz_target() {
  local target
  for target in "${fuzz_targets[@]}"; do
    [ "$target" = "$1" ] && return 0
  done
  echo "There is no target $1; there are: ${fuzz_targets[*]}" >&2
  return 1
}

# longest_input NAME: the number of bytes beyond which longer inputs hardly find anything new.
longest_input() {
  case $1 in
    text | keys) echo 48 ;;
    serve) echo 512 ;;
    *) echo 128 ;;
  esac
}

build_fuzz_targets() {
  need_packages clang cmake ninja-build python3 libclang-rt-14-dev libcli11-dev nlohmann-json3-dev libutfcpp-dev libmd-dev libtomlplusplus-dev
  build_preset fuzz "${fuzz_targets[@]/#/kelp_quill_inp_fuzz_}"
}

# need_corpus NAME: fails when the target has no inputs to begin with; to lose them would go unnoticed.
need_corpus() {
  if [ ! -d "$corpus/$1" ] || [ -z "$(find "$corpus/$1" -type f)" ]; then
    echo "The corpus of $1 is empty: $corpus/$1" >&2
    return 1
  fi
}

# pack_corpus: the same inputs give the same archive.
pack_corpus() {
  tar --create --directory="$corpus" --sort=name --owner=0 --group=0 --numeric-owner --mtime=@0 \
    --mode=u=rwX,go=rX --format=ustar "${fuzz_targets[@]}" | xz -9 >fuzz/corpus.tar.xz
}
