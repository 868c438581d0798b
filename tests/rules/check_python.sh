#!/bin/sh
# Fails when a script starts the Python that happens to be the first on the path, which may have none of
# the packages that the scripts install:
#
#   check_python.sh TREE
#
# Python is /usr/bin/python3. Every wrong line is named. Comments and lists of packages are ignored, and so
# are the samples that this check is tried on.
set -eu
export LC_ALL=C

cd "$1"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

find .ci scripts tests editors examples fuzz -type f ! -name check_python_test.sh \
  \( -name '*.sh' -o -path .ci/run \) | sort >"$scratch/files"
[ -s "$scratch/files" ] || {
  echo "there are no scripts in $1" >&2
  exit 1
}
xargs grep -nP '^(?!\s*#)(?!.*need_packages).*(?<![\w/.-])python3(?=\s+\S)(?!\s+\\$)' <"$scratch/files" \
  >"$scratch/findings" || [ $? -eq 123 ]
if [ -s "$scratch/findings" ]; then
  cat "$scratch/findings" >&2
  echo "Python is started as /usr/bin/python3" >&2
  exit 1
fi
echo "$(wc -l <"$scratch/files") scripts start the Python of the system, or none"
