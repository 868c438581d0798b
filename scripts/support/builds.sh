# Sourced by the scripts in scripts/: builds without output, and shows the output if that fails.

# quietly LOG COMMAND...
quietly() {
  local log=$1
  shift
  mkdir -p "$(dirname "$log")"
  "$@" >"$log" 2>&1 && return 0
  tail -n 30 "$log" >&2
  echo "The build failed; the whole output is in $log." >&2
  return 1
}

configure_and_build() {
  cmake --preset "$1" && cmake --build --preset "$1" "${@:2}"
}

# build_preset PRESET [TARGET...]: builds everything of a preset, or the targets, in build/PRESET.
build_preset() {
  quietly "build/$1/build.log" configure_and_build "$1" ${2:+--target "${@:2}"}
}
