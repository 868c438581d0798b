#!/usr/bin/env bash
# Builds the documentation site in build/docs: the reference from the headers and the pages of
# docs/. Doxygen's warnings are errors, and so are descriptions that two functions share and links that
# lead nowhere.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages doxygen python3 linkchecker chromium

site=build/docs
rm -rf "$site"
mkdir -p "$site"

# The pages in the order of reading, each if it is there.
navigation() {
  local page title
  while read -r page title; do
    [ -f "docs/$page.md" ] && printf '<a href="%s.html">%s</a>\n' "$page" "$title"
  done <<'PAGES'
getting-started Start
format Format
editing Editing
quill-inp Tool
python Python
findings Findings
embedding Embedding
packaging Packaging
performance Performance
architecture Architecture
PAGES
  echo '<a href="namespacekelp_1_1input_1_1quill.html">Reference</a>'
}

python3 scripts/support/figures.py --check SECURITY.md properties fuzz corpus mutants scale
python3 scripts/support/figures.py --check docs/performance.md bench

for page in README.md CONTRIBUTING.md CHANGELOG.md examples/inputs/README.md docs/*.md docs/lint/*.md; do
  python3 docs/site/page_filter.py "$page" >/dev/null
done

navigation >"$site/navigation"
sed -e "/@NAVIGATION@/{r $site/navigation" -e 'd;}' docs/site/header.html >"$site/header.html"
PROJECT_NUMBER=$(sed -n 's/^ *VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt) SITE_BUILD=$site \
  doxygen docs/site/Doxyfile
scripts/support/descriptions_test.sh
python3 scripts/support/descriptions.py "$site/xml"
rm -r "$site/xml"
rm "$site"/{navigation,header.html,tabs.css,doxygen.svg} "$site"/*.{png,js}

# The navigation marks the current page.
for file in "$site"/*.html; do
  name=$(basename "$file")
  sed -i "/^<nav/,/^<\/nav>/s|href=\"$name\"|& aria-current=\"page\"|" "$file"
done

scripts/support/check_site.sh "$site"
echo "the site is in $site, its first page is $site/index.html"
