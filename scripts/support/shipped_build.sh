# Sourced by the scripts that look at what is shipped: builds the libraries and the tool as the
# Debian packages have them, in build/debian/; needs builds.sh and packages.sh.
shipped_packages=("${build_packages[@]}" libcli11-dev nlohmann-json3-dev libutfcpp-dev libmd-dev libtomlplusplus-dev gzip)

# build_shipped TREE: in the tree that is named, quietly.
build_shipped() {
  (cd "$1" && build_preset debian)
}
