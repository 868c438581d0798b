#!/usr/bin/env bash
# Fails on any finding of cppcheck or of g++'s analyzer in the libraries, the tools and the examples.
#
#   scripts/check_analysis.sh [cppcheck]   both, or cppcheck alone, which takes seconds
#
# scripts/support/cppcheck_suppressions.txt says which findings of cppcheck are suppressed and why. The
# analyzer, which g++ 12 has mainly for C, is run without its check for values that are not initialised,
# since that reports every object that a function returns by value, and without these sources:
#   - those with templates of CLI11 or of the JSON library: it uses gigabytes and does not finish
#   - the verbs: it does not see that std::function's destructor frees what the function holds, and
#     believes that the copy of a list in braces is null
#   - suggestion: it believes that the elements of a vector that is never empty are null
#   - trouble: it believes that a reference is null where the cast of its address gives null
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/packages.sh

need_packages "${tool_packages[@]}" cppcheck

cppcheck --quiet --error-exitcode=1 -j "$(nproc)" --std=c++17 --language=c++ \
  --enable=warning,style,performance,portability \
  --suppressions-list=scripts/support/cppcheck_suppressions.txt \
  -I include -I src/support -I src -I lossless -I tools src sisters lossless examples tools
echo "cppcheck has no findings"
if [ "${1:-}" = cppcheck ]; then exit 0; fi

with_templates='arguments|help_formatter|json_reading|run|verb'
verbs='add|diff|fmt|from_json|get|hash|json|new|set|show|sweep|unset'
left_out="($with_templates|$verbs|suggestion|trouble|main)\\.cpp\\.o$"

list_objects_of_tool() {
  ninja -C build/analyzer -t targets all | sed -nE 's#^(tools/quill-inp/.*\.cpp\.o): .*#\1#p' |
    grep -vE "/$left_out"
}

log=build/analyzer/build.log
mkdir -p build/analyzer
if ! {
  cmake --preset analyzer &&
    list_objects_of_tool | xargs cmake --build --preset analyzer --target kelp_core_text \
      kelp_chem_elements kelp_quill_inp kelp_quill_lossless examples/all
} >"$log" 2>&1; then
  grep -E 'error:|warning:' "$log" >&2 || tail -n 30 "$log" >&2
  echo "The whole output is in $log." >&2
  exit 1
fi
echo "g++'s analyzer has no findings"
