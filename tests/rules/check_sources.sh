#!/bin/sh
# Fails when a source of the libraries uses something that ties their results to a locale, keeps
# state between calls, or lets a text of the wrong shape do harm:
#
#   check_sources.sh FOLDER...
#
# Every wrong line is named, and so is the rule that it breaks. Comments are ignored.
set -eu
export LC_ALL=C

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
findings=$scratch/findings
code=$scratch/code
lines=$scratch/lines
: >"$findings"

# rule WHY PATTERN: reports each line of the current file that the Perl pattern matches.
rule() {
  status=0
  grep -nP -- "$2" "$code" >"$lines" || status=$?
  if [ "$status" -gt 1 ]; then
    echo "this pattern is not understood: $2" >&2
    exit 1
  fi
  while IFS= read -r line; do
    printf '%s:%s\n  %s\n' "$file" "$line" "$1"
  done <"$lines" >>"$findings"
}

character_tests='is(alpha|alnum|blank|cntrl|digit|graph|lower|print|punct|space|upper|xdigit)|to(lower|upper)'

check_file() {
  # Every line stays where it is, so that its number is that in the file.
  sed -e 's://.*$::' "$file" >"$code"

  rule "a character test takes the value of an unsigned char, and is not passed on by name" \
    "\\b($character_tests)\\b(?!\\(static_cast<unsigned char>\\()"
  rule "numbers are not read by functions that ask the locale or pass over what they cannot read" \
    '\b(sto(i|l|ll|ul|ull|f|d|ld)|ato(i|l|ll|f)|strto(l|ll|ul|ull|f|d|ld|imax|umax))\b'
  rule "numbers are not printed or scanned by functions that ask the locale" \
    '\bv?(f|s|sn|d|as)?(printf|scanf)\b'
  rule "regular expressions recurse once for every character of a text" '\bregex\b'
  rule "memory of unknown size does not come from the stack" '\b(__builtin_)?alloca\b'
  rule "no locale but the classic one is asked, made or set" \
    '\b(setlocale|localeconv|newlocale|uselocale|nl_langinfo)\b|\blocale\b(?!>|::classic\(\))'
  rule "streams take the locale of the process" \
    '<(sstream|iostream|iomanip|ostream|istream)>|\b[io]?(string|f)stream\b(?!>)|\bstd::(cout|cerr|clog|cin)\b'
  rule "names are not taken over from a whole namespace" '\busing\s+namespace\b'
  rule "nothing outlives a call" '\bthread_local\b|\bstatic\s+(?!constexpr\b|const\b)(?![^=;{]*\()'
  rule "the environment of the process has no influence" '\b(secure_)?getenv\b'
  rule "functions of the C library that keep state are not used" \
    '\b(strtok|strerror|rand|srand|localtime|gmtime)\b'

  if grep -q 'std::filebuf ' "$code" && ! grep -q 'pubimbue(std::locale::classic())' "$code"; then
    printf '%s\n  %s\n' "$file" "a file buffer is given the classic locale" >>"$findings"
  fi
}

find "$@" -name '*.[ch]pp' | sort >"$scratch/files"
if [ ! -s "$scratch/files" ]; then
  echo "there are no sources in $*" >&2
  exit 1
fi
while IFS= read -r file; do
  check_file
done <"$scratch/files"

if [ -s "$findings" ]; then
  cat "$findings" >&2
  exit 1
fi
echo "$(wc -l <"$scratch/files") sources follow the rules"
