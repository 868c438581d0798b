#!/usr/bin/env bash
# Tries descriptions.py on headers with and without the mistakes that it is to find.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# try EXIT_CODE EXPECTED: compares the exit code, and what is printed for the header on standard input.
try() {
  rm -rf "$scratch/xml"
  cat >"$scratch/sample.hpp"
  (
    echo "INPUT = $scratch/sample.hpp"
    echo "OUTPUT_DIRECTORY = $scratch"
    printf '%s = NO\n' GENERATE_HTML GENERATE_LATEX WARNINGS
    printf '%s = YES\n' QUIET GENERATE_XML EXTRACT_ALL
    echo 'FILTER_PATTERNS = *.hpp="awk -f docs/site/header_filter.awk"'
  ) | doxygen - >"$scratch/log" 2>&1
  local code=0
  /usr/bin/python3 scripts/support/descriptions.py "$scratch/xml" >"$scratch/said" 2>&1 || code=$?
  diff -u <(printf '%s\nexit code %s\n' "$2" "$1") <(cat "$scratch/said"; echo "exit code $code")
}

try 0 "2 functions have descriptions of their own" <<'HEADER'
/// @file

/// Sets the charge.
void set_charge(int charge);
void set_charge(long charge);
HEADER

try 0 "2 functions have descriptions of their own" <<'HEADER'
/// @file

/// Sets the charge.
[[nodiscard]] bool set_charge(int charge);

/// Sets the multiplicity.
void set_multiplicity(int multiplicity);
template <typename Text>
void set_charge(Text) = delete;
HEADER

try 1 "void set_charge and void set_multiplicity are both described as: Set both numbers." <<'HEADER'
/// @file

/// Set both numbers.
void set_charge(int charge);
void set_multiplicity(int multiplicity);
HEADER

try 1 "void set_multiplicity has no description" <<'HEADER'
/// @file

/// Sets the charge.
void set_charge(int charge);

void set_multiplicity(int multiplicity);
HEADER

# What is said of a destructor is not said of the function after it.
try 1 "int Atoms::count has no description" <<'HEADER'
/// @file

/// A list.
class Atoms {
 public:
  /// Closes the list.
  ~Atoms();

  int count() const;
};
HEADER

try 1 "no functions are described in $scratch/xml" <<'HEADER'
/// @file

/// Nothing.
HEADER
echo "missing and shared descriptions are found"
