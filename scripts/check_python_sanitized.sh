#!/usr/bin/env bash
# Runs the tests of the Python package with the extension and the libraries under the address and
# undefined behaviour sanitizers. Python itself is Debian's: it takes each object from malloc here, so that
# the sanitizer sees wrong uses of objects, too.
#
# Leaks count if they are memory of C++. What Python and NumPy do not free when Python ends is left out:
# support/python_leaks.txt names these.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. scripts/support/builds.sh
. scripts/support/packages.sh

need_packages "${test_packages[@]}"
build_preset dev kelp_quill_inp_calls quill-inp
build_preset python-asan kelp_quill_inp_python

export PYTHONPATH=$PWD/build/python-asan/python PYTHONMALLOC=malloc
export QUILL_INP_PROGRAM=$PWD/build/dev/tools/quill-inp/quill-inp
export QUILL_INP_CALLS=$PWD/build/dev/tests/python/kelp_quill_inp_calls
# Little memory is kept after it is freed, because a test looks for growth; of the calls that lead to an
# allocation, only the last one is recorded, because of the files in LSAN_OPTIONS.
export ASAN_OPTIONS=detect_leaks=1:malloc_context_size=2:quarantine_size_mb=2:thread_local_quarantine_size_kb=64
export UBSAN_OPTIONS=print_stacktrace=1
export LSAN_OPTIONS=suppressions=$PWD/scripts/support/python_leaks.txt:print_suppressions=0

# Python is not linked to these, so that they have to be there before it starts.
runtime="$(g++ -print-file-name=libasan.so) $(g++ -print-file-name=libubsan.so) $(g++ -print-file-name=libstdc++.so)"

# sanitized_python ARGUMENT...
sanitized_python() { LD_PRELOAD=$runtime /usr/bin/python3 -B "$@"; }

# A sanitizer that finds nothing anywhere would not be noticed.
if sanitized_python - 2>build/python-asan/leak.log <<'PROGRAM'; then
import ctypes

allocate = ctypes.CDLL("libstdc++.so.6")["_Znwm"]
allocate.restype = ctypes.c_void_p
allocate(12345)
PROGRAM
  echo "memory of C++ that is lost is not found" >&2
  exit 1
fi
grep -q '12345 byte(s) leaked' build/python-asan/leak.log

# What is not about the extension, or is done by other processes, is left out.
sanitized_python -m pytest -q -p no:cacheprovider tests/python \
  --ignore=tests/python/neighbours --ignore=tests/python/types_test.py \
  --ignore=tests/python/sweep_test.py --ignore=tests/python/reference_test.py
