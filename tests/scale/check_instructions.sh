#!/usr/bin/env bash
# Fails if a task of tasks.cpp takes more than slightly above twice the instructions for twice the size.
# Unlike times, instructions do not depend on other programs; a task with quadratic cost takes four times
# as many.
#
#   check_instructions.sh VALGRIND PROGRAM
set -euo pipefail

counts=$(mktemp -d)
trap 'rm -rf "$counts"' EXIT
if ! "$1" --tool=callgrind --instr-atstart=no --callgrind-out-file="$counts/counts" "$2" \
  2>"$counts/messages"; then
  cat "$counts/messages" >&2
  exit 1
fi

cd "$counts"
# One file for each task and size. The last file has what is counted at the end; it is left out.
# shellcheck disable=SC2046  # the names have no blanks
awk -v most=2.05 '
  /^desc: Trigger: Client Request: / { task = $5; size = $6 }
  /^(summary|totals): / && task != "" {
    if (!(task in least)) { order[++tasks] = task; sizes[task] = size; least[task] = $2 }
    else if (size == 2 * sizes[task]) { twice[task] = $2 }
    task = ""
  }
  END {
    print "task                                  size   instructions     for twice   ratio"
    for (i = 1; i <= tasks; ++i) {
      task = order[i]
      if (!(task in twice)) { print task " was not counted at twice its size"; failed = 1; continue }
      ratio = twice[task] / least[task]
      is_linear = ratio <= most
      if (!is_linear) failed = 1
      printf "%-34s %7d %14.0f %13.0f %7.3f%s\n", task, sizes[task], least[task], twice[task], ratio,
        is_linear ? "" : "  more than " most
    }
    if (tasks == 0) { print "nothing was counted"; failed = 1 }
    exit failed
  }
' $(ls -v counts.*)
