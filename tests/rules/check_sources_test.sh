#!/bin/sh
# Tries check_sources.sh on sources that break one rule each, and on sources that look alike and
# break none.
set -eu
export LC_ALL=C

check=$(dirname "$0")/check_sources.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
sample=$scratch/sample.cpp
failures=0

fail() {
  echo "$*" >&2
  failures=$((failures + 1))
}

# is_refused LINE RULE: the line is named, with its number and the rule that it breaks.
is_refused() {
  printf '// A sample.\n%s\n' "$1" >"$sample"
  if output=$(sh "$check" "$scratch" 2>&1); then
    fail "passes: $1"
    return
  fi
  case $output in
    *"sample.cpp:2:$1"*"$2"*) ;;
    *) fail "for: $1
this is said: $output" ;;
  esac
}

is_accepted() {
  printf '// A sample.\n%s\n' "$1" >"$sample"
  output=$(sh "$check" "$scratch" 2>&1) || fail "refused: $output"
}

is_refused 'return std::isalpha(c) != 0;' 'unsigned char'
is_refused 'return isspace(static_cast<int>(c)) != 0;' 'unsigned char'
is_refused 'c = static_cast<char>(std::tolower(c));' 'unsigned char'
is_refused 'std::find_if(text.begin(), text.end(), ::isspace);' 'unsigned char'
is_refused 'using std::isdigit;' 'unsigned char'
is_accepted 'return std::isalpha(static_cast<unsigned char>(c)) != 0;'
is_accepted 'return is_space(c); // unlike isspace(c)'
is_accepted 'c = to_lower(c);'

is_refused 'const double x = std::stod(token);' 'read by functions'
is_refused 'const int i = std::stoi (token);' 'read by functions'
is_refused 'const double x = atof(token.c_str());' 'read by functions'
is_refused 'const double x = strtod(token.c_str(), &end);' 'read by functions'
is_refused 'const long i = std::strtoll(token.c_str(), &end, 10);' 'read by functions'
is_accepted 'const bool stored = store(token);'

is_refused 'std::snprintf(text, sizeof text, "%g", x);' 'printed or scanned'
is_refused 'sscanf(text, "%d", &i);' 'printed or scanned'

is_refused '#include <regex>' 'regular expressions'
is_refused 'const std::regex pattern("a*");' 'regular expressions'

is_refused 'auto* memory = alloca(size);' 'from the stack'
is_refused 'auto* memory = __builtin_alloca(size);' 'from the stack'
is_accepted 'std::allocator<char> memory;'

is_refused 'std::setlocale(LC_ALL, "C");' 'locale'
is_refused 'const std::locale user("");' 'locale'
is_refused 'stream.imbue(std::locale());' 'locale'
is_refused 'const auto* conventions = localeconv();' 'locale'
is_accepted 'file.pubimbue(std::locale::classic());'
is_accepted '#include <locale>'

is_refused '#include <sstream>' 'streams'
is_refused 'std::ostringstream out;' 'streams'
is_refused 'std::ifstream file(path);' 'streams'
is_refused 'std::fstream file(path);' 'streams'
is_refused 'std::cerr << "x";' 'streams'
is_accepted '#include <fstream>'

is_refused 'using namespace std;' 'whole namespace'
is_refused '  using  namespace std::string_literals;' 'whole namespace'
is_accepted 'namespace text = kelp::core::text;'

is_refused 'static int calls = 0;' 'outlives'
is_refused '  static std::string last;' 'outlives'
is_refused 'static std::vector<int> cache{1, 2};' 'outlives'
is_refused 'inline thread_local int depth = 0;' 'outlives'
is_accepted 'static constexpr int limit = 3;'
is_accepted 'static const Table& table();'
is_accepted 'static std::size_t count(std::string_view text);'
is_accepted 'static_assert(sizeof(int) == 4);'

is_refused 'const char* home = std::getenv("HOME");' 'environment'
is_refused 'char* word = std::strtok(text, " ");' 'keep state'
is_refused 'const int r = rand();' 'keep state'
is_accepted 'const int operand = 3;'

printf 'std::filebuf file;\n' >"$sample"
if sh "$check" "$scratch" 2>/dev/null; then fail "a file buffer passes without a locale"; fi
is_accepted 'std::filebuf file; file.pubimbue(std::locale::classic());'

rm "$sample"
if sh "$check" "$scratch" 2>/dev/null; then fail "a folder without sources passes"; fi

if [ "$failures" -ne 0 ]; then
  echo "$failures samples are not judged as they should be" >&2
  exit 1
fi
echo "every sample is judged as it should be"
