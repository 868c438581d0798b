#!/bin/sh
# Tries check_test_sources.sh on a small folder of tests, and on the same with one thing wrong.
set -eu

check=$(dirname "$0")/check_test_sources.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/samples.sh"
tests=$scratch/tests

make_tests() {
  rm -rf "$tests"
  mkdir -p "$tests/unit/refused" "$tests/package"
  printf '#include <gtest/gtest.h>\n\nTEST(A, IsRight) {}\n' >"$tests/unit/a_test.cpp"
  printf 'int helper() { return 1; }\n' >"$tests/unit/helper.cpp"
  printf 'int main() {}\n' >"$tests/package/main.cpp"
  printf 'char text = nullptr;\n' >"$tests/unit/refused/text.cpp"
  printf '%s\n' "$tests/unit/helper.cpp" "$tests/unit/a_test.cpp" /usr/src/other.cpp >"$scratch/list"
}

# judge accepted|refused WHAT
judge() {
  expect "$1" "$2" sh "$check" "$tests" "$scratch/list"
}

make_tests
judge accepted 'nothing is wrong'

make_tests
printf 'TEST(B, IsRight) {}\n' >"$tests/unit/b_test.cpp"
judge refused 'a test is not built'

make_tests
: >"$tests/unit/other.cpp"
judge refused 'a helper is not built'

make_tests
: >"$tests/unit/a_test.cpp"
judge refused 'a test is empty'

make_tests
printf '// TEST(A, IsRight) {}\nint TESTED(int);\n' >"$tests/unit/a_test.cpp"
judge refused 'the only test is a comment'

make_tests
printf 'static_assert(true);\n' >"$tests/unit/a_test.cpp"
judge accepted 'the compiler makes the test'

rm -r "$tests/unit"
judge refused 'there are no tests'

end_of_samples
