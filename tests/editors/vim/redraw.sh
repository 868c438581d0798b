#!/usr/bin/env bash
# Shows the end of an input of 10,000 atoms on a terminal. Vim goes through all atoms for this, and switches
# highlighting off when that takes longer than its limit, 'redrawtime'. Fails if it does.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../../.."
export EDITORS=$PWD/editors/vim
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# A row of carbon atoms is the slowest: "C" may begin a constraint, too.
awk 'BEGIN { print "#sp\n\n0 1"; for (i = 0; i < 10000; i++) printf "C %14.6f %14.6f %14.6f\n", 1.4 * i, -i, i / 7
  print "\nB 1 2" }' >"$scratch/chain.qin"
cat >"$scratch/look.vim" <<'E2'
normal! G
redraw
call writefile([synIDattr(synID(line('$'), 1, 0), 'name'), &redrawtime], 'shown')
qa!
E2
cd "$scratch"
# The time limit is around the terminal. Inside it, where the shell may be one that starts a job of its own
# for it, Vim would be in the background and be stopped when it touches the terminal.
timeout --kill-after=10 60 script --quiet --return --command "vim -u NONE -i NONE -N \
  --cmd 'set runtimepath^=$EDITORS' -c 'syntax on' -c 'edit chain.qin' -c 'setfiletype qin' -S look.vim" \
  /dev/null </dev/null >screen
if ! diff -u <(printf 'qinConstrains\n2000\n') shown; then
  echo "Vim gave up before it came to the last line of 10,000 atoms" >&2
  exit 1
fi
echo "Vim highlights the end of 10,000 atoms"
