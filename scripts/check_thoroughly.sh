#!/usr/bin/env bash
# The checks that would take too long for every change, for use before a release: the analyses over all
# sources, the tests in other modes, what is shipped, longer fuzzing, mutants, exactness, scale. Takes
# some hours on two cores. When all have passed on a commit, notes that for scripts/release.sh.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. support/release.sh

commit=$(cd .. && committed_state)

step() { printf '\n=== %s (after %d s)\n' "$*" "$SECONDS"; }

step "clang-tidy over everything"
./check_tidy.sh src sisters lossless tools bench examples tests fuzz

step "g++'s analyzer"
./check_analysis.sh

step "threads under the thread sanitizer"
(
  cd ..
  cmake --preset tsan
  cmake --build --preset tsan --target kelp_quill_inp_threads_test kelp_quill_inp_tool_threads_test
  ctest --preset tsan
)

step "the tests with the standard library's checks, with a char that has no sign, under valgrind"
./debug_library.sh
./unsigned_char.sh
./valgrind.sh

step "the tests of the Python package, with a million texts and twenty times the examples"
(cd .. && QUILL_INP_TEST_THOROUGHLY=1 ctest --preset dev -R '^Python\.')

step "the Python package under the sanitizers"
./check_python_sanitized.sh

step "the tests of the libraries with another standard library"
for folder in unit interface properties exactness; do ./libcxx.sh "$folder"; done

step "the oldest compilers"
./check_compilers.sh

step "the site, and how fast its page answers"
QUILL_INP_TEST_THOROUGHLY=1 ./docs.sh

step "the page for beginners, with the tool"
../tests/docs/first_program.sh "$(cd .. && pwd)" "$(cd .. && pwd)/build/getting_started" g++ and-the-tool

step "what is shipped: the package in other projects, a wheel, hardening, Debian packages, the same bytes"
./check_package.sh
./check_python_wheel.sh
./check_hardening.sh
./check_debian.sh
./check_reproducible.sh

step "fuzz targets"
./fuzz.sh 200000

step "ten million numbers of every kind"
./exactness.sh

step "the largest texts"
./scale.sh

step "mutants"
./mutate.sh

cd ..
if [ -n "$commit" ] && [ "$(committed_state)" = "$commit" ]; then
  date --utc >"$(thorough_mark "$commit")"
  echo "all checks passed on the commit $commit"
else
  echo "all checks passed on files that are no commit; a release needs a commit that was checked"
fi
