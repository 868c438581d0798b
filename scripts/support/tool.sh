# Sourced by the scripts beside it that ask quill-inp for its help; needs packages.sh.

tool=build/dev/tools/quill-inp/quill-inp

build_tool() {
  need_packages "${test_packages[@]}"
  local log=build/dev/tool.log
  mkdir -p build/dev
  if ! { cmake --preset dev &&
    cmake --build --preset dev --target quill-inp; } >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "The build failed; the whole output is in $log." >&2
    return 1
  fi
}
