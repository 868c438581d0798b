#!/usr/bin/env bash
# Makes the extension for Visual Studio Code, looks at what is in it, checks the types of the tests of its
# parts and runs them. Its own sources are checked when it is made.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
tests=tests/editors/vscode
scripts/editors.sh

package=build/editors/quill-inp.vsix
unzip -Z1 "$package" | LC_ALL=C sort | diff -u "$tests/contents.txt" -
unzip -p "$package" extension/syntaxes/quill.tmLanguage.json |
  cmp - editors/textmate/syntaxes/quill.tmLanguage.json
if ! grep -q '"version": "'"$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)"'"' editors/vscode/package.json; then
  echo "editors/vscode/package.json and CMakeLists.txt state different versions" >&2
  exit 1
fi

cd build/editors/vscode
npx --no-install tsc --project "../../../$tests"
bundles=()
for test in "../../../$tests"/*.test.ts; do
  bundle=../tests/$(basename "$test" .ts).cjs
  npx --no-install esbuild "$test" --bundle --platform=node --format=cjs --log-level=warning \
    --external:playwright-core --outfile="$bundle"
  bundles+=("$bundle")
done
EXTENSION=$PWD NODE_PATH=$PWD/node_modules timeout 120 node --test "${bundles[@]}" >../tests/log ||
  { cat ../tests/log >&2; exit 1; }
echo "the extension for Visual Studio Code has what it needs, and draws molecules"
