# Sourced by the scripts in scripts/ that ask quill-inp for its help; needs builds.sh and packages.sh.

tool=build/dev/tools/quill-inp/quill-inp

build_tool() {
  need_packages "${test_packages[@]}"
  build_preset dev quill-inp
}
