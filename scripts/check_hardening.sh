#!/usr/bin/env bash
# Builds the libraries, the tool and the Python package as they are shipped and checks, in the files as built
# and as installed, that they are hardened as cmake/hardening.cmake says.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/libraries.sh
. scripts/support/packages.sh
. scripts/support/shipped_build.sh

need_packages "${shipped_packages[@]}" binutils

build_shipped .
build=build/debian
installed=$PWD/$build/installed
rm -rf "$installed"
cmake --install "$build" --prefix "$installed" >/dev/null

complaints=$build/complaints
: >"$complaints"
complain() { echo "$1 $2" >>"$complaints"; }

# Every source was compiled with every flag.
sources=$(grep -c '"command":' "$build/compile_commands.json")
for flag in -D_FORTIFY_SOURCE=3 -D_GLIBCXX_ASSERTIONS -fstack-protector-strong \
  -fstack-clash-protection -fcf-protection=full; do
  # grep fails when it counts none; the comparison below reports that.
  compiled=$(grep '"command":' "$build/compile_commands.json" | grep -cF -- " $flag " || true)
  [ "$compiled" -eq "$sources" ] || complain "$((sources - compiled)) sources" "are without $flag"
done

# unmarked_functions FILE: how many of our functions do not begin with the mark for targets of indirect
# calls. Functions that are only called directly have no mark, and neither have parts of functions.
unmarked_functions() {
  objdump --disassemble --section=.text --no-show-raw-insn "$1" |
    awk '/^[0-9a-f]+ <_ZN.*4kelp.*>:$/ && !/_GLOBAL__N_|\.(cold|part|isra|constprop)/ {
           getline
           if (!/endbr64/) count++
         }
         END { print count + 0 }'
}

# check_file FILE KIND: the marks that the flags leave in a file. KIND is library or program.
check_file() {
  local file=$1 dynamic segments unmarked
  dynamic=$(readelf --wide --dynamic "$file")
  segments=$(readelf --wide --program-headers "$file")
  unmarked=$(unmarked_functions "$file")

  grep -q '^ *GNU_RELRO ' <<<"$segments" || complain "$file" "stays writable after relocation"
  grep -Eq '\(FLAGS\).*BIND_NOW' <<<"$dynamic" || complain "$file" "binds functions late"
  grep -Eq '^ *GNU_STACK .* RW ' <<<"$segments" || complain "$file" "has an executable stack"
  ! grep -q '(TEXTREL)' <<<"$dynamic" || complain "$file" "has relocations in its code"
  [ "$unmarked" -eq 0 ] || complain "$file" "has $unmarked functions without a mark for calls"
  if [ "$2" = program ]; then
    grep -Eq '\(FLAGS_1\).* PIE' <<<"$dynamic" || complain "$file" "is tied to one address"
  fi
}

# check_installed_file FILE KIND [PREFIX]: PREFIX is that of the functions that the loading program has.
check_installed_file() {
  check_file "$1" "$2"
  ! readelf --dynamic "$1" | grep -Eq '\((RPATH|RUNPATH)\)' || complain "$1" "has a run path"
  if LD_LIBRARY_PATH=$libraries ldd -r "$1" 2>&1 | grep -E 'undefined symbol|not found' |
    grep -vE "undefined symbol: ${3:-$^}"; then
    complain "$1" "needs what its libraries do not have"
  fi
}

libraries=$(dirname "$(find "$installed" -name libkelp_quill_inp.so)")
for library in "${shared_libraries[@]}"; do
  check_file "$build/$library.so" library
  check_installed_file "$libraries/$(basename "$library").so" library
done
check_file "$build/tools/quill-inp/quill-inp" program
check_installed_file "$installed/bin/quill-inp" program
extension=$(basename "$build"/python/quill_inp/_core.*.so)
check_file "$build/python/quill_inp/$extension" library
check_installed_file "$installed/lib/python3/dist-packages/quill_inp/$extension" library '_?Py'

# These leave marks only where there are arrays on the stack and containers to look into.
for file in "$libraries/libkelp_quill_inp.so" "$installed/bin/quill-inp" "$build/python/quill_inp/$extension"; do
  names=$(nm --dynamic "$file")
  grep -q '__stack_chk_fail' <<<"$names" || complain "$file" "does not guard its stack"
  grep -q '__glibcxx_assert_fail' <<<"$names" || complain "$file" "does not check its indices"
done

if [ -s "$complaints" ]; then
  cat "$complaints" >&2
  exit 1
fi
echo "the libraries, the tool and the Python package are hardened"
