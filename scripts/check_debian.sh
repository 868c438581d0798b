#!/usr/bin/env bash
# Builds the Debian packages and checks them with lintian. As root it also installs them, uses the tool
# and the Python package, builds a program against the library as their users would, and removes them again.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/shipped_build.sh

need_packages "${shipped_packages[@]}" dpkg-dev file lintian pkg-config

build_shipped .
rm -f build/debian/*.deb
cpack --preset debian >build/debian/cpack.log 2>&1
lintian --fail-on error,warning --tag-display-limit 0 --allow-root build/debian/*.deb
echo "lintian finds no error"

if [ "$(id -u)" -ne 0 ]; then
  echo "only root can install the packages; they are in build/debian/"
  exit 0
fi

packages=()
for package in build/debian/*.deb; do packages+=("$(dpkg-deb --field "$package" Package)"); done
for package in "${packages[@]}"; do
  if dpkg-query --show "$package" >/dev/null 2>&1; then
    echo "$package is installed already and is left alone" >&2
    exit 1
  fi
done

scratch=$(mktemp -d)
remove() {
  dpkg --purge "${packages[@]}" >/dev/null
  rm -rf "$scratch"
}
trap remove EXIT
dpkg --install build/debian/*.deb >/dev/null

# Some systems leave documentation out, so it is looked at outside.
dpkg-deb --extract build/debian/libkelp-quill-inp-dev_*.deb "$scratch/unpacked"
sh tests/package/links_of_pages.sh "$scratch/unpacked/usr/share/doc/libkelp-quill-inp-dev"

quill-inp set examples/inputs/water_optimisation.qin opt.maxiter=100 >"$scratch/water.qin"
diff <(sed 's/maxiter=50/maxiter=100/' examples/inputs/water_optimisation.qin) "$scratch/water.qin"

# Every module is there, with its stub.
installed=/usr/lib/python3/dist-packages/quill_inp
for file in python/quill_inp/*.py python/quill_inp/*.pyi python/quill_inp/py.typed; do
  cmp "$file" "$installed/${file##*/}"
done
dpkg-query --show --showformat '${Recommends}\n' python3-quill-inp | grep -qx python3-numpy

(
  cd "$scratch"
  /usr/bin/python3 -I - water.qin <<'PROGRAM'
import importlib.metadata
import sys

import quill_inp

assert quill_inp.__file__ == "/usr/lib/python3/dist-packages/quill_inp/__init__.py"
assert quill_inp.read(sys.argv[1]).find_command("opt").parameters[0].value == "100"
assert importlib.metadata.version("kelp-quill-inp") == quill_inp.__version__
(found,) = importlib.metadata.entry_points(group="ase.ioformats")
assert found.value == "quill_inp.ase:ase_format"
PROGRAM
)

# The compiler searches the folders of the package by default: no folder need be named.
flags=$(pkg-config --cflags --libs kelp_quill_inp)
case $flags in
  *-L*) echo "pkg-config names folders that the compiler knows: $flags" >&2 && exit 1 ;;
esac
# The flags must be split into words.
# shellcheck disable=SC2086
g++ -std=c++17 tests/package/consumer/main.cpp -o "$scratch/by_pkg_config" $flags
"$scratch/by_pkg_config"
cmake -S tests/package/consumer -B "$scratch/by_cmake" -G Ninja >/dev/null
cmake --build "$scratch/by_cmake" >/dev/null
ctest --test-dir "$scratch/by_cmake" --output-on-failure --no-tests=error >/dev/null

remove
trap - EXIT
if find / -xdev \( -name 'libkelp_quill_inp*' -o -name 'quill-inp' -type f -o -name quill_inp -o -name 'kelp_quill_inp-*' \) \
  -path '/usr/*' | grep .
then
  echo "the packages are removed and the files above are still there" >&2
  exit 1
fi
echo "${packages[*]}: installed, used and removed"
