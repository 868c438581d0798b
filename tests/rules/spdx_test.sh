#!/usr/bin/env bash
# Lists what is in a small release, and tries the check of lists on it and on damaged ones. Debian's
# package manager is one of this test's own.
#
#   spdx_test.sh TREE
set -euo pipefail

spdx=$1/scripts/support/spdx.py
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

mkdir -p "$scratch"/{bin,sources/src,release}
cat >"$scratch/bin/dpkg-query" <<'END_OF_QUERY'
#!/bin/sh
for name in "$@"; do :; done
case $name in
  g++) printf '4:12.2.0-3' ;;
  *) echo "no packages found matching $name" >&2; exit 1 ;;
esac
END_OF_QUERY
chmod +x "$scratch/bin/dpkg-query"
printf 'int main() {}\n' >"$scratch/sources/src/main.cpp"
printf 'int  main() {}\n' >"$scratch/sources/src/main_.cpp"
printf 'packed' >"$scratch/release/kelp-1.0.tar.xz"

# list PACKAGES
list() {
  PATH="$scratch/bin:$PATH" SOURCE_DATE_EPOCH=1767225600 /usr/bin/python3 "$spdx" write --name kelp-1.0 \
    --version 1.0 --commit 1a2b3c --sources "$scratch/sources" --built-with "$1" \
    "$scratch/release/kelp-1.0.tar.xz"
}
list g++ >"$scratch/list.json"
/usr/bin/python3 "$spdx" check "$scratch/list.json" >/dev/null

# contains TEXT...: the list does.
contains() {
  local text
  for text in "$@"; do
    grep -qF -- "$text" "$scratch/list.json" || {
      echo "the list does not have: $text" >&2
      failures=$((failures + 1))
    }
  done
}
contains '"created": "2026-01-01T00:00:00Z"' '"fileName": "./src/main.cpp"' \
  '"fileName": "./src/main_.cpp"' '"versionInfo": "4:12.2.0-3"' '"sourceInfo": "commit 1a2b3c"' \
  "$(sha256sum <"$scratch/release/kelp-1.0.tar.xz" | cut -d ' ' -f 1)" \
  "$(sha1sum <"$scratch/sources/src/main.cpp" | cut -d ' ' -f 1)"

# is_refused WHAT SED_SCRIPT: the list that sed makes of the good one.
is_refused() {
  sed "$2" "$scratch/list.json" >"$scratch/damaged.json"
  if cmp --silent "$scratch/list.json" "$scratch/damaged.json"; then
    echo "nothing is damaged: $1" >&2
    failures=$((failures + 1))
  elif /usr/bin/python3 "$spdx" check "$scratch/damaged.json" >/dev/null 2>&1; then
    echo "a list is accepted: $1" >&2
    failures=$((failures + 1))
  fi
}
is_refused 'another form' 's/SPDX-2.3/SPDX-2.2/'
is_refused 'an unknown member' 's/"supplier"/"suplier"/'
is_refused 'a licence that nobody named' 's/"licenseDeclared": "NOASSERTION"/"licenseDeclared": "X"/'
is_refused 'a checksum that is cut off' 's/\("checksumValue": "[0-9a-f]*\)[0-9a-f]"/\1"/'
is_refused 'a time that is none' 's/T00:00:00Z/ 00:00:00/'
is_refused 'a relation to nothing' 's/"relatedSpdxElement": "SPDXRef-Sources"/"relatedSpdxElement": "SPDXRef-None"/'
is_refused 'two things with one name' 's/"SPDXID": "SPDXRef-[SR][^"]*"/"SPDXID": "SPDXRef-Sources"/'

if list "g++ nothing-of-this-name" >/dev/null 2>&1; then
  echo "a package that is not installed is listed" >&2
  failures=$((failures + 1))
fi
[ "$failures" -eq 0 ] || exit 1
echo "the list has what it should have"
