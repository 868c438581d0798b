#!/bin/sh
# Tries check_pages.sh on a small tree with pages that name scripts.
set -eu

check=$(cd "$(dirname "$0")" && pwd)/check_pages.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/samples.sh"

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
  expect "$1" "$2" sh "$check" "$scratch"
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

end_of_samples
