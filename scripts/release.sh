#!/usr/bin/env bash
# Makes what a release is, in build/releases/VERSION/: the archive of the sources, the Debian packages,
# the documentation, a list of what is in it and on what it was built (SPDX, in JSON), and checksums.
#
#   scripts/release.sh            makes the release
#   scripts/release.sh --check    says only whether one can be made
#
# Refuses when files differ from the commit, when the versions in the tree do not agree or CHANGELOG.md
# does not name this one, and when scripts/check_thoroughly.sh was not seen to pass on the commit.
# Everything is built and tested from the archive, in a folder without git.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh
. scripts/support/release.sh

reasons=$(reasons_against_a_release)
if [ -n "$reasons" ]; then
  printf 'no release can be made:\n%s\n' "$reasons" >&2
  exit 1
fi
if [ "${1:-}" = --check ]; then
  echo "a release can be made"
  exit 0
fi

need_packages git "${test_packages[@]}"

export LC_ALL=C TZ=UTC
commit=$(git rev-parse HEAD)
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH
version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)
name=libkelp_quill_inp-$version
release=$PWD/build/releases/$version
rm -rf "$release"
mkdir -p "$release"

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

step() { printf '=== %s (after %d s)\n' "$*" "$SECONDS"; }

step "the archive of the sources, and the same again from itself"
archive=$release/$name.tar.xz
mkdir "$scratch/committed"
git archive "$commit" | tar --extract --directory "$scratch/committed"
scripts/support/source_archive.sh "$scratch/committed" "$name" "$SOURCE_DATE_EPOCH" "$archive"
tar --extract --directory "$scratch" --file "$archive"
tree=$scratch/$name
"$tree/scripts/support/source_archive.sh" "$tree" "$name" \
  "$(stat --format=%Y "$tree/CMakeLists.txt")" "$scratch/again.tar.xz"
cmp "$archive" "$scratch/again.tar.xz"

step "build and tests of the archive"
# Who calls git anyway is told so.
mkdir "$scratch/without_git"
printf '#!/bin/sh\necho "the archive is built without git" >&2\nexit 1\n' >"$scratch/without_git/git"
chmod +x "$scratch/without_git/git"
in_archive() {
  (cd "$tree" && PATH="$scratch/without_git:$PATH" "$@")
}
quietly "$release.test.log" in_archive scripts/test.sh

step "Debian packages"
quietly "$release.debian.log" in_archive scripts/check_debian.sh
cp "$tree"/build/debian/*.deb "$release/"

step "documentation"
quietly "$release.docs.log" in_archive scripts/docs.sh
scripts/support/source_archive.sh "$tree/build/docs" "$name-documentation" "$SOURCE_DATE_EPOCH" \
  "$release/$name-documentation.tar.xz"

step "what is in it and on what it was built"
/usr/bin/python3 scripts/support/spdx.py write --name "$name" --version "$version" --commit "$commit" \
  --sources "$scratch/committed" --built-with "${test_packages[*]}" "$release"/* >"$scratch/spdx.json"
mv "$scratch/spdx.json" "$release/$name.spdx.json"
/usr/bin/python3 scripts/support/spdx.py check "$release/$name.spdx.json"

(cd "$release" && sha256sum -- * >"$scratch/SHA256SUMS" && mv "$scratch/SHA256SUMS" .)
echo "the release is in build/releases/$version:"
cat "$release/SHA256SUMS"
