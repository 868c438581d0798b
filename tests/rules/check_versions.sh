#!/bin/sh
# Fails when files of the tree state different versions:
#
#   check_versions.sh [--release] TREE [LIBRARY...]
#
# The version is that of project() in CMakeLists.txt. The newest entry of CHANGELOG.md is of that version
# or, between releases, says "Unreleased"; with --release it may not, and has a date. Each library's
# soname has the part of the version that stands for its binary interface, and so do the described
# interfaces.
set -eu
export LC_ALL=C

is_release=no
if [ "$1" = --release ]; then
  is_release=yes
  shift
fi
tree=$1
shift

failures=0
complain() {
  echo "$*" >&2
  failures=$((failures + 1))
}

version=$(sed -n 's/^ *VERSION \([0-9]*\.[0-9]*\.[0-9]*\)$/\1/p' "$tree/CMakeLists.txt")
case $version in
  "")
    echo "$tree/CMakeLists.txt has no version" >&2
    exit 1
    ;;
  0.*) interface=${version%.*} ;;
  *) interface=${version%%.*} ;;
esac

# expect FILE STATED EXPECTED: what the file states is this version.
expect() {
  [ "$2" = "$3" ] || complain "$1 states version '$2', and project() stands for '$3'"
}

newest=$(sed -n '/^## /{s/^## //p;q;}' "$tree/CHANGELOG.md")
if [ "$is_release" = no ] && [ "$newest" = Unreleased ]; then
  released=$(sed -n 's/^## \([0-9][0-9.]*\).*/\1/p' "$tree/CHANGELOG.md" | head -n 1)
  oldest=$(printf '%s\n' "$version" "${released:-0}" | sort -V | head -n 1)
  if [ "$released" = "$version" ] || [ "$oldest" = "$version" ]; then
    complain "CHANGELOG.md has unreleased changes, and project() still has the released version $version"
  fi
elif ! printf '%s\n' "$newest" | sed "s/^$version, //" | grep -qxE '[0-9]{4}-[0-9]{2}-[0-9]{2}'; then
  complain "the newest entry of CHANGELOG.md is '$newest', and should be '$version, YEAR-MONTH-DAY'"
fi
expect cmake/debian/changelog \
  "$(sed -n '1s/^kelp-quill-inp (\([0-9.]*\)-[^)]*).*/\1/p' "$tree/cmake/debian/changelog")" "$version"

# expect_interface FILE SONAME: a name such as libkelp_core_text.so.0.1
expect_interface() {
  expect "$1" "${2##*.so.}" "$interface"
}
for file in "$tree"/tests/abi/*.abi; do
  expect_interface "$file" "$(sed -n "s/.* soname='\([^']*\)'.*/\1/p" "$file" | head -n 1)"
done
for file in "$@"; do
  expect_interface "$file" \
    "$(readelf --dynamic --wide "$file" | sed -n 's/.*(SONAME).*\[\(.*\)\]$/\1/p')"
done

# Every page, list and description that names a library or a package with its version.
grep -rnoE 'libkelp_[a-z_]+\.so\.[0-9.]*[0-9]|libkelp-quill-inp[0-9][0-9.]*' \
  "$tree/docs" "$tree/README.md" "$tree/tests/package/installed_files" \
  "$tree/tests/interface/exported" --include='*.md' --include='*.txt' |
  grep -vE "(\.so\.|quill-inp)($interface|$version)\$" && complain "the lines above name other versions"

[ "$failures" -eq 0 ] || exit 1
echo "version $version throughout, with the interface $interface"
