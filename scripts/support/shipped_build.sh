# Sourced by the scripts that look at what is shipped: builds the libraries and the tool as the
# Debian packages have them, in build/debian/.
shipped_packages=("${build_packages[@]}" libcli11-dev nlohmann-json3-dev gzip)

# build_shipped TREE: in the tree that is named, quietly.
build_shipped() {
  local log=$1/build/debian/build.log
  mkdir -p "$1/build/debian"
  if ! (cd "$1" && cmake --preset debian && cmake --build --preset debian) >"$log" 2>&1; then
    tail -n 30 "$log" >&2
    echo "The build failed; the whole output is in $log." >&2
    return 1
  fi
}
