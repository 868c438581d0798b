#!/bin/sh
# Tries check_python.sh on a small tree with scripts that start Python.
set -eu

check=$(cd "$(dirname "$0")" && pwd)/check_python.sh
# shellcheck source=tests/rules/samples.sh
. "$(dirname "$0")/samples.sh"

for folder in .ci scripts tests/rules editors examples fuzz; do mkdir -p "$scratch/$folder"; done
: >"$scratch/.ci/run"

# judge accepted|refused LINE: a script with this line.
judge() {
  printf '#!/bin/sh\n%s\n' "$2" >"$scratch/tests/rules/sample.sh"
  expect "$1" "$2" sh "$check" "$scratch"
}

judge accepted '/usr/bin/python3 -B a.py'
judge accepted '# python3 of the system'
judge accepted 'need_packages python3 cmake'
judge accepted '  python3-dev python3-numpy'
judge accepted 'find include python -name a'
judge refused 'python3 a.py'
judge refused '  python3 -'
judge refused 'A=1 python3 a.py'
judge refused 'put() { python3 a.py; }'
judge refused 'exec python3 -B a'
# shellcheck disable=SC2016
judge refused 'x=$(python3 -c 1)'

# Scripts of every folder are read.
rm "$scratch/tests/rules/sample.sh"
for script in .ci/run scripts/a.sh editors/a.sh examples/a.sh fuzz/a.sh; do
  echo 'python3 a.py' >"$scratch/$script"
  expect refused "$script" sh "$check" "$scratch"
  : >"$scratch/$script"
done
expect accepted 'no script with Python' sh "$check" "$scratch"

end_of_samples
