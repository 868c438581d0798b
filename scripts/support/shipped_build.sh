# Sourced by the scripts that look at what is shipped: builds the libraries, the tool and the Python package
# as the Debian packages have them, in build/debian/; needs builds.sh and packages.sh.
shipped_packages=("${build_packages[@]}" libcli11-dev nlohmann-json3-dev libutfcpp-dev libmd-dev libtomlplusplus-dev gzip
  pybind11-dev python3-dev)

# build_shipped TREE: in the tree that is named, quietly.
build_shipped() {
  (cd "$1" && build_preset debian)
}
