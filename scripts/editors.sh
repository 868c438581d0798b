#!/usr/bin/env bash
# Makes the extension for Visual Studio Code, build/editors/quill-inp.vsix. Needs npm.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh
. scripts/support/npm.sh

made=build/editors
mkdir -p "$made/textmate" "$made/vscode"
# Nothing that an earlier run has left may come into the package.
find "$made/vscode" -mindepth 1 -maxdepth 1 ! -name node_modules -exec rm -rf {} +
for file in editors/vscode/* editors/vscode/.npmrc editors/vscode/.vscodeignore editors/textmate/syntaxes; do
  case $file in
    */node_modules | */dist | editors/vscode/syntaxes) ;;
    *) cp -r "$file" "build/${file%/*}/" ;;
  esac
done

install_npm_packages editors/vscode "$made/vscode"
cd "$made/vscode"
npx --no-install tsc -noEmit
node build.mjs
npx --no-install vsce package --no-dependencies --skip-license --allow-missing-repository \
  --out ../quill-inp.vsix >../vsce.log 2>&1 || { cat ../vsce.log >&2; exit 1; }
echo "the extension is $made/quill-inp.vsix"
