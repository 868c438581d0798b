#!/bin/sh
# Tries check_pages.sh on a small tree with pages that name scripts.
set -eu

check=$(cd "$(dirname "$0")" && pwd)/check_pages.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

mkdir -p "$scratch/scripts/support" "$scratch/.ci" "$scratch/docs" "$scratch/build"
for script in scripts/test.sh .ci/run; do
  : >"$scratch/$script"
  chmod +x "$scratch/$script"
done
: >"$scratch/scripts/not_executable.sh"
: >"$scratch/scripts/support/packages.sh"
echo '{}' >"$scratch/CMakePresets.json"
# Pages in a build are not ours.
echo 'scripts/none.sh' >"$scratch/build/page.md"

# judge accepted|refused LINE: a page with this line.
judge() {
  printf '# A page\n\n%s\n' "$2" >"$scratch/docs/page.md"
  verdict=refused
  if sh "$check" "$scratch" >/dev/null 2>&1; then verdict=accepted; fi
  if [ "$verdict" != "$1" ]; then
    echo "a page is $verdict: $2" >&2
    failures=$((failures + 1))
  fi
}

judge accepted "Run \`scripts/test.sh\`, or .ci/run."
judge accepted 'scripts/test.sh unit'
judge accepted 'It begins with scripts/test.sh.'
judge accepted 'The scripts in scripts/support/ read scripts/support/packages.sh.'
judge refused "Run \`scripts/tests.sh\`."
judge refused 'Run scripts/test.sh and scripts/none.sh.'
judge refused '[this](scripts/none.sh)'
judge refused 'Run .ci/walk.'
judge refused 'Run scripts/not_executable.sh.'
judge refused 'It reads scripts/support/package.sh.'
judge refused 'It names no script.'

if [ "$failures" -ne 0 ]; then exit 1; fi
echo "every page is judged as it should be"
