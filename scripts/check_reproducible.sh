#!/usr/bin/env bash
# Builds what is shipped a second time, from a copy of the tree in another folder, and compares all
# installed files and the Debian packages byte for byte.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/shipped_build.sh

need_packages "${shipped_packages[@]}" dpkg-dev file

elsewhere=$(mktemp -d)
trap 'rm -rf "$elsewhere"' EXIT
copy=$elsewhere/a/folder/with/a/longer/name
mkdir -p "$copy"
tar --create --exclude=./build --exclude=./.git . | tar --extract --directory "$copy"

# The times in the packages are set to this one.
SOURCE_DATE_EPOCH=$(date --date='2026-01-01 00:00:00 UTC' +%s)
export SOURCE_DATE_EPOCH

for tree in . "$copy"; do
  build_shipped "$tree"
  rm -rf "$tree/build/debian/compared" "$tree"/build/debian/*.deb
  cmake --install "$tree/build/debian" --prefix "$tree/build/debian/compared/installed" >/dev/null
  (cd "$tree" && cpack --preset debian) >"$tree/build/debian/cpack.log" 2>&1
  mv "$tree"/build/debian/*.deb "$tree/build/debian/compared/"
done
diff -r build/debian/compared "$copy/build/debian/compared"
echo "$(find build/debian/compared ! -type d | wc -l) files are the same from both folders"
