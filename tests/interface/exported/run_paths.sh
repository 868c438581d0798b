#!/bin/sh
# Fails when a program or library looks for others in a folder that depends on where it is started or
# on the machine: an empty entry in a run path is the current folder. Every entry begins with $ORIGIN,
# the folder of the file itself.
#
#   run_paths.sh [--none | --each] FILE_OR_FOLDER...
#
# With --none no file may have a run path; with --each every file must have one.
set -eu

wanted=any
case $1 in
  --*)
    wanted=${1#--}
    shift
    ;;
esac

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
find -H "$@" -type f | sort >"$scratch/files"

# run_path_of FILE: prints it, or fails if there is none.
run_path_of() {
  sed -n 's/.*(\(RPATH\|RUNPATH\)).*\[\(.*\)\]$/\2/p' "$1" | grep ''
}

failures=0
complain() {
  echo "$*" >&2
  failures=$((failures + 1))
}

count=0
while IFS= read -r file; do
  # Objects and archives have no dynamic section, other files are of no interest.
  readelf --dynamic --wide "$file" >"$scratch/section" 2>/dev/null || continue
  grep -q '(STRTAB)' "$scratch/section" || continue
  count=$((count + 1))
  if ! path=$(run_path_of "$scratch/section"); then
    [ "$wanted" != each ] || complain "$file has no run path"
    continue
  fi
  [ "$wanted" != none ] || complain "$file has the run path '$path'"
  # The dynamic linker replaces the name, not this shell.
  # shellcheck disable=SC2016
  if ! printf '%s:' "$path" | tr ':' '\n' | grep -vE '^\$ORIGIN(/|$)' >"$scratch/entries"; then
    continue
  fi
  complain "$file has the run path '$path', not all of whose entries begin with \$ORIGIN"
done <"$scratch/files"

if [ "$count" -eq 0 ]; then
  echo "there are no programs and libraries in $*" >&2
  exit 1
fi
[ "$failures" -eq 0 ] || exit 1
echo "$count files have the run paths that they should have"
