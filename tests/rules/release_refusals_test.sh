#!/usr/bin/env bash
# Asks scripts/release.sh whether a release can be made, of a small tree in which nothing speaks against
# it, and of the same with one thing wrong. A git of this test's own answers, so that none is needed.
#
#   release_refusals_test.sh TREE
set -euo pipefail

tree=$1
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0
small=$scratch/small

mkdir "$scratch/bin"
cat >"$scratch/bin/git" <<END_OF_GIT
#!/bin/sh
case "\$*" in
  "rev-parse --verify --quiet HEAD") cat "$scratch/commit" 2>/dev/null ;;
  "status --porcelain") cat "$scratch/changes" ;;
  *) echo "nobody expects git \$*" >&2; exit 2 ;;
esac
END_OF_GIT
chmod +x "$scratch/bin/git"

make_tree() {
  rm -rf "$small"
  mkdir -p "$small"/{scripts/support,tests/rules,tests/abi,cmake/debian,build}
  cp "$tree/scripts/release.sh" "$small/scripts/"
  cp "$tree"/scripts/support/{builds,packages,release}.sh "$small/scripts/support/"
  cp "$tree/tests/rules/check_versions.sh" "$small/tests/rules/"
  mkdir -p "$small"/{docs,tests/package/installed_files,tests/interface/exported}
  echo 'A library.' >"$small/README.md"
  printf 'project(kelp_quill_inp\n  VERSION 0.2.1\n)\n' >"$small/CMakeLists.txt"
  printf '# Changelog\n\n## 0.2.1, 2026-03-01\n' >"$small/CHANGELOG.md"
  echo 'kelp-quill-inp (0.2.1-0kelp1) unstable; urgency=medium' >"$small/cmake/debian/changelog"
  echo "<abi-corpus soname='libkelp_core_text.so.0.2'>" >"$small/tests/abi/libkelp_core_text.abi"
  echo 1a2b3c >"$scratch/commit"
  : >"$scratch/changes"
  : >"$small/build/passed_thorough_checks_of_1a2b3c"
}

# is_refused WHAT WORDS: with these words, and with no others.
is_refused() {
  local said
  if said=$(PATH="$scratch/bin:$PATH" "$small/scripts/release.sh" --check 2>&1); then
    echo "a release can be made although $1" >&2
    failures=$((failures + 1))
  elif [ "$said" != "no release can be made:
$2" ]; then
    printf 'when %s, this is said:\n%s\n' "$1" "$said" >&2
    failures=$((failures + 1))
  fi
}

make_tree
[ "$(PATH="$scratch/bin:$PATH" "$small/scripts/release.sh" --check)" = "a release can be made" ] || {
  echo "no release can be made of a tree in which all is right" >&2
  failures=$((failures + 1))
}

rm "$scratch/commit"
is_refused "there is no commit" \
  "this folder is no checkout of a git repository, and a release is made of a commit"

make_tree
echo ' M README.md' >"$scratch/changes"
is_refused "a file was changed" \
  "there are files that differ from the commit 1a2b3c; commit or remove them"

make_tree
printf '# Changelog\n\n## Unreleased\n\n## 0.2.1, 2026-03-01\n' >"$small/CHANGELOG.md"
is_refused "there are unreleased changes" \
  "the newest entry of CHANGELOG.md is 'Unreleased', and should be '0.2.1, YEAR-MONTH-DAY'"

make_tree
echo "<abi-corpus soname='libkelp_core_text.so.0.1'>" >"$small/tests/abi/libkelp_core_text.abi"
is_refused "the described interface is of another version" \
  "./tests/abi/libkelp_core_text.abi states version '0.1', and project() stands for '0.2'"

make_tree
mv "$small"/build/passed_thorough_checks_of_{1a2b3c,1a2b3d}
is_refused "another commit was checked" \
  "scripts/check_thoroughly.sh was not seen to pass on the commit 1a2b3c; run it"

make_tree
echo ' M README.md' >"$scratch/changes"
rm -r "$small/build"
is_refused "two things are wrong" \
  "there are files that differ from the commit 1a2b3c; commit or remove them
scripts/check_thoroughly.sh was not seen to pass on the commit 1a2b3c; run it"

[ "$failures" -eq 0 ] || exit 1
echo "every tree is judged as it should be"
