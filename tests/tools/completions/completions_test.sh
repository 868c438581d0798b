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
# shellcheck disable=SC2016 # the shells must not expand what is a name
printf '#opt(maxiter=50, a.b)\n#opt\n#freq opt\n#odd`touch made`\n' >water.qin
mkdir bin
ln -s "$(realpath "$program")" bin/quill-inp
export HOME=$scratch PATH=$scratch/bin:$PATH
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
# The keys of an input; each shell quotes them in its own way.
for verb in get unset; do
  expect "bash: keys of a file for $verb" $'opt\nopt.maxiter\nopt.a\\\\.b\nopt\\[1\\]' \
    "$(offers_of_bash quill-inp $verb water.qin opt)"
  expect "zsh: keys of a file for $verb" $'opt\nopt.maxiter\nopt.a\\\\.b\nopt\\[1\\]' \
    "$(offers_of_zsh quill-inp $verb water.qin opt)"
  expect "fish: keys of a file for $verb" $'opt\nopt.maxiter\nopt.a\\.b\nopt[1]' \
    "$(offers_of_fish quill-inp $verb water.qin opt)"
done
expect 'bash: keys to set' 'freq\ opt=' "$(offers_of_bash quill-inp set -q water.qin fre)"
expect 'zsh: keys to set' 'freq\ opt=' "$(offers_of_zsh quill-inp set -q water.qin fre)"
expect 'fish: keys to set' 'freq opt=' "$(offers_of_fish quill-inp set -q water.qin fre)"
expect 'bash: keys for an option' $'opt\nopt.maxiter\nopt.a\\\\.b\nopt\\[1\\]' \
  "$(offers_of_bash quill-inp get water.qin -k opt)"
# shellcheck disable=SC2016
expect 'bash: keys that a shell could expand' 'odd\`touch\ made\`' \
  "$(offers_of_bash quill-inp get water.qin odd)"
for shell in bash zsh fish; do
  expect "$shell: no keys without a file" '' "$(offers_of_$shell quill-inp get none.qin opt)"
done
if [ -e made ]; then
  echo "a key of a file was carried out" >&2
  failures=$((failures + 1))
fi

expect 'fish: when to use colour' $'--color=always' "$(offers_of_fish quill-inp show --color=al)"

if [ "$failures" -ne 0 ]; then
  echo "$failures lists are not as the help has them" >&2
  exit 1
fi
echo "bash, zsh and fish offer what the help lists"
