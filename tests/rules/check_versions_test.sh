#!/bin/sh
# Tries check_versions.sh on a small tree whose versions agree, and on the same with one thing wrong.
set -eu

check=$(dirname "$0")/check_versions.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/samples.sh"

# file PATH TEXT
file() {
  mkdir -p "$scratch/$(dirname "$1")"
  printf '%s\n' "$2" >"$scratch/$1"
}

make_tree() {
  rm -rf "${scratch:?}"/*
  file CMakeLists.txt 'project(kelp_quill_inp
  VERSION 0.2.1
)'
  file CHANGELOG.md '# Changelog

## 0.2.1, 2026-03-01

## 0.2.0, 2026-01-01'
  file cmake/debian/changelog 'kelp-quill-inp (0.2.1-0kelp1) unstable; urgency=medium'
  file tests/abi/libkelp_core_text.abi "<abi-corpus version='2.1' soname='libkelp_core_text.so.0.2'>"
  file docs/packaging.md 'the library libkelp_quill_inp.so.0.2 in the package libkelp-quill-inp0.2'
  file tests/package/installed_files/shared.txt 'runtime lib/libkelp_quill_inp.so.0.2.1'
  file tests/interface/exported/needed.txt 'quill-inp: libkelp_quill_inp.so.0.2'
  file README.md 'A library.'
}

# judge accepted|refused WHAT [OPTION]
judge() {
  # The option is one word or none.
  # shellcheck disable=SC2086
  expect "$1" "$2 ${3:-}" sh "$check" ${3:-} "$scratch"
}

make_tree
judge accepted 'nothing is wrong'
judge accepted 'nothing is wrong' --release

file CHANGELOG.md '## Unreleased

## 0.2.0, 2026-01-01'
judge accepted 'there are unreleased changes'
judge refused 'there are unreleased changes' --release

file CHANGELOG.md '## Unreleased'
judge accepted 'nothing was released yet'

file CHANGELOG.md '## Unreleased

## 0.2.1, 2026-01-01'
judge refused 'unreleased changes of a released version'

file CHANGELOG.md '## Unreleased

## 0.10.0, 2026-01-01'
judge refused 'a version before the released one'

file CHANGELOG.md '## 0.2.2, 2026-03-01'
judge refused 'the changelog has another version'
file CHANGELOG.md '## 0.2.1, soon'
judge refused 'a release without a date' --release
file CHANGELOG.md '## 0.2.1'
judge refused 'a release without a date' --release

make_tree
file cmake/debian/changelog 'kelp-quill-inp (0.2.0-0kelp1) unstable; urgency=medium'
judge refused 'the Debian packages have another version'

make_tree
file tests/abi/libkelp_core_text.abi "<abi-corpus version='2.1' soname='libkelp_core_text.so.0.1'>"
judge refused 'the described interface has another version'

make_tree
file docs/packaging.md 'the library libkelp_quill_inp.so.0.1'
judge refused 'a page names another library'

make_tree
file docs/packaging.md 'the package libkelp-quill-inp0.1'
judge refused 'a page names another package'

make_tree
file tests/package/installed_files/shared.txt 'runtime lib/libkelp_quill_inp.so.0.2.0'
judge refused 'a list has another file'

make_tree
file CMakeLists.txt 'project(kelp_quill_inp)'
judge refused 'the project has no version'

make_tree
file CMakeLists.txt 'project(kelp_quill_inp
  VERSION 2.0.1
)'
file CHANGELOG.md '## 2.0.1, 2026-03-01'
file cmake/debian/changelog 'kelp-quill-inp (2.0.1-0kelp1) unstable; urgency=medium'
file tests/abi/libkelp_core_text.abi "<abi-corpus version='2.1' soname='libkelp_core_text.so.2'>"
file docs/packaging.md 'the library libkelp_quill_inp.so.2 in the package libkelp-quill-inp2'
file tests/package/installed_files/shared.txt 'runtime lib/libkelp_quill_inp.so.2.0.1'
file tests/interface/exported/needed.txt 'quill-inp: libkelp_quill_inp.so.2'
judge accepted 'after 1.0 the major version stands for the interface'

end_of_samples
