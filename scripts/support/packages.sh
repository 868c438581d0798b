# Sourced by the scripts in scripts/: installs the Debian packages that a script needs, and only those
# that are missing, so that nothing is downloaded once they are installed.

# need_packages NAME...
need_packages() {
  local missing=() name
  for name in "$@"; do
    if ! dpkg-query --show --showformat='${db:Status-Status}\n' "$name" 2>/dev/null |
      grep -qx installed; then
      missing+=("$name")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "These Debian packages are missing: ${missing[*]}" >&2
      echo "Install them as root, or install sudo, and run this again." >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing ${missing[*]}"
  if ! { "${as_root[@]}" apt-get update -q &&
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -q -y --no-install-recommends "${missing[@]}"; } >"$package_log" 2>&1; then
    tail -n 20 "$package_log" >&2
    echo "These Debian packages could not be installed: ${missing[*]}" >&2
    echo "The whole output is in $package_log." >&2
    return 1
  fi
}

package_log=${TMPDIR:-/tmp}/kelp_quill_inp_packages.$(id -u).log
build_packages=(g++ cmake ninja-build)
tool_packages=("${build_packages[@]}" libcli11-dev nlohmann-json3-dev libutfcpp-dev libmd-dev
  libtomlplusplus-dev)
test_packages=("${tool_packages[@]}" libgtest-dev libgmock-dev locales valgrind python3-jsonschema
  pre-commit xz-utils pybind11-dev python3-dev python3-hypothesis python3-mypy python3-numpy
  python3-pytest)
