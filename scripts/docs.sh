#!/usr/bin/env bash
# Builds the documentation site in build/docs: the reference from the headers, the Markdown pages of the
# tree, and the page "Try it", which is compared with the program. Doxygen's warnings are errors, and so are
# descriptions that two functions share and links that lead nowhere. The packages of npm are those of
# docs/site/package-lock.json.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh
. scripts/support/builds.sh
. scripts/support/npm.sh
. scripts/support/tool.sh

need_packages doxygen python3 chromium

tools=build/site-tools
install_npm_packages docs/site "$tools"

site=build/docs
rm -rf "$site" "$tools"/{render,tests,try-it,xml}
mkdir -p "$site"

scripts/support/figures_test.sh
/usr/bin/python3 scripts/support/figures.py --check SECURITY.md properties fuzz corpus mutants scale
/usr/bin/python3 scripts/support/figures.py --check docs/performance.md times reading writing tools all

SITE_BUILD=$tools doxygen docs/site/Doxyfile
scripts/support/descriptions_test.sh
/usr/bin/python3 scripts/support/descriptions.py "$tools/xml"

# Node looks for packages in the folders above a module.
cp -r docs/site/{render,try-it} "$tools"
scripts/wasm.sh
node "$tools/try-it/build.mjs" "$site" build/wasm/tools/web examples/inputs
version=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt)
node "$tools/render/build.mjs" "$PWD" "$tools/xml" "$site" "$version"

build_tool
scripts/support/check_site.sh "$site" "$tools" "$tool"
echo "the site is in $site, its first page is $site/index.html"
