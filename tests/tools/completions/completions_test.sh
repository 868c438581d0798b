#!/usr/bin/env bash
# What the completions of the three shells offer is what the help lists: the same verbs, for each
# verb the same options, no more and no fewer.
#
#   completions_test.sh PROGRAM COMPLETIONS
set -euo pipefail
export LC_ALL=C
program=$1
completions=$2
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
touch water.qin
export HOME=$scratch
failures=0

offers_of_bash() { bash "$here/offers_of_bash.sh" "$completions" "$@"; }
offers_of_zsh() { zsh -f "$here/offers_of_zsh.zsh" "$completions" "$@"; }
offers_of_fish() { fish --no-config "$here/offers_of_fish.fish" "$completions" "$@"; }

# expect WHAT EXPECTED ACTUAL: two lists of words, in any order.
expect() {
  local expected actual
  expected=$(printf '%s\n' "$2" | sort -u)
  actual=$(printf '%s\n' "$3" | sort -u)
  if [ "$expected" != "$actual" ]; then
    echo "$1:" >&2
    diff <(echo "$expected") <(echo "$actual") >&2 || true
    failures=$((failures + 1))
  fi
}

# long_options: of those that a help on standard input lists.
long_options() { sed -nE 's/^  (-[a-z0-9],)?(--[a-z-]+).*/\2/p'; }
short_options() { sed -nE 's/^  (-[a-z0-9]),--.*/\1/p'; }
# only_long: "--color=" and "--color" are one option.
only_long() { sed -nE 's/^(--[a-z-]+)=?-?$/\1/p'; }

verbs=$("$program" --help | sed -n '/^Verbs:/,/^$/s/^  \([a-z-]*\)  .*/\1/p')
for shell in bash zsh fish; do
  offers=offers_of_$shell
  expect "$shell: verbs" "$verbs" "$($offers quill-inp '')"
  expect "$shell: options without a verb" "$("$program" --help | long_options)" \
    "$($offers quill-inp -- | only_long)"
  for verb in $verbs; do
    "$program" "$verb" --help >help
    expect "$shell: options of $verb" "$(long_options <help)" \
      "$($offers quill-inp "$verb" -- | only_long)"
    expect "$shell: short options of $verb" "$(short_options <help)" \
      "$($offers quill-inp "$verb" - | grep -xE -e '-[a-z0-9]')"
  done
  expect "$shell: files" water.qin "$($offers quill-inp show wat)"
done

expect 'bash: when to use colour' $'auto\nalways\nnever' \
  "$(offers_of_bash quill-inp show --color = '')"
expect 'bash: keys' $'@charge=\n@multiplicity=' "$(offers_of_bash quill-inp set water.qin @)"
expect 'zsh: keys' $'@charge=\n@multiplicity=' "$(offers_of_zsh quill-inp set water.qin @)"
expect 'fish: keys' $'@charge=\n@multiplicity=' "$(offers_of_fish quill-inp set water.qin @)"
expect 'fish: when to use colour' $'--color=always' "$(offers_of_fish quill-inp show --color=al)"

if [ "$failures" -ne 0 ]; then
  echo "$failures lists are not as the help has them" >&2
  exit 1
fi
echo "bash, zsh and fish offer what the help lists"
