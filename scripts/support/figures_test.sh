#!/usr/bin/env bash
# Tries figures.py on a small page.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
page=$scratch/page.md

# block NAME: a block with the text on standard input.
block() { printf '<!-- figures: %s -->\n\n```text\n%s\n```\n\n<!-- end -->\n' "$1" "$(cat)"; }

make_page() {
  echo '# Page'
  block times <<<'read    1 ms'
  block chosen <<'ROWS'
what                ratio   half of rounds at most  verdict
write_file : floor  1.500    1.400 - 1.600    1.20  at its floor, 1.45
read : plain
ROWS
  block all <<'ROWS'
what                ratio   half of rounds at most  verdict
read : plain
read : own          1.100    1.000 - 1.200    1.05  NOT MET
write_file : floor  1.500    1.400 - 1.600    1.20  at its floor, 1.45
ROWS
} >"$page"

# try EXIT_CODE EXPECTED ARGUMENT...: compares the exit code, and what is printed for the input on standard
# input.
try() {
  local expected="${2:+$2$'\n'}exit code $1" code=0
  shift 2
  /usr/bin/python3 scripts/support/figures.py "$@" >"$scratch/said" 2>&1 || code=$?
  diff -u <(echo "$expected") <(cat "$scratch/said"; echo "exit code $code")
}

make_page
try 0 "" --check "$page" times chosen all </dev/null

# The rows go wherever the page has them, what is new goes to the last table, and other lines to none.
try 0 "not measured: read : own" --ratios "$page" <<'OUTPUT'
Building in build/bench ...
what                ratio   half of rounds at most  verdict
peak heap           3.131            exact    3.20  met
read : plain        0.700    0.600 - 0.800    0.90  met
write_file : floor  1.100    1.000 - 1.200    1.20  met
OUTPUT
diff -u - "$page" <<PAGE
# Page
$(block times <<<'read    1 ms')
$(block chosen <<'ROWS'
what                ratio   half of rounds at most  verdict
write_file : floor  1.100    1.000 - 1.200    1.20  met
read : plain        0.700    0.600 - 0.800    0.90  met
ROWS
)
$(block all <<'ROWS'
what                ratio   half of rounds at most  verdict
read : plain        0.700    0.600 - 0.800    0.90  met
read : own          1.100    1.000 - 1.200    1.05  NOT MET
write_file : floor  1.100    1.000 - 1.200    1.20  met
peak heap           3.131            exact    3.20  met
ROWS
)
PAGE
try 0 "" --check "$page" times chosen all </dev/null

try 1 "no ratios were measured" --ratios "$page" <<<'read : plain: no such file'

sed -i '0,/0\.700/s//0.600/' "$page"
try 1 "$page: the table chosen has a row that the table all does not have: read : plain        0.600    0.600 - 0.800    0.90  met" \
  --check "$page" times chosen all </dev/null

make_page
sed -i "0,/^read : plain/s//$(printf 'row %s\\n' {1..9})read : plain/" "$page"
try 1 "$page: the table chosen has more than 10 rows" --check "$page" times chosen all </dev/null

make_page
try 1 "$page has the blocks of figures ['times', 'chosen', 'all'], and not ['times', 'all'], or one is torn" \
  --check "$page" times all </dev/null

try 0 "" "$page" times <<<'write   2 ms'
try 0 "" --rows "$page" times < <(printf 'write   3 ms\nread    4 ms\n')
diff -u <(printf '# Page\n'; printf 'write   3 ms\nread    4 ms\n' | block times) <(sed '/^<!-- end -->$/q' "$page")

try 1 "the text for block none is empty, or the page does not have one such block" "$page" none <<<'1 ms'
echo "figures go to their places"
