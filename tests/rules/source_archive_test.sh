#!/usr/bin/env bash
# Packs a small tree, and the same as others might have it: with other times, rights, owners and order.
#
#   source_archive_test.sh TREE
set -euo pipefail

pack=$1/scripts/support/source_archive.sh
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

mkdir -p "$scratch/one/src"
printf 'int main() {}\n' >"$scratch/one/src/main.cpp"
printf '#!/bin/sh\n' >"$scratch/one/run"
chmod 755 "$scratch/one/run"
mkdir -p "$scratch/two/src"
cp "$scratch/one/run" "$scratch/two/"
cp "$scratch/one/src/main.cpp" "$scratch/two/src/"
touch --date=@1 "$scratch/two/src/main.cpp"
chmod 600 "$scratch/two/src/main.cpp"
chmod 700 "$scratch/two/run" "$scratch/two/src"

"$pack" "$scratch/one" kelp-1.0 1767225600 "$scratch/one.tar.xz"
(umask 077 && TZ=Asia/Tokyo "$pack" "$scratch/two" kelp-1.0 1767225600 "$scratch/two.tar.xz")
cmp "$scratch/one.tar.xz" "$scratch/two.tar.xz"

listed=$(TZ=UTC tar --list --verbose --numeric-owner --file "$scratch/one.tar.xz" | tr -s ' ')
diff - <(printf '%s\n' "$listed") <<'END_OF_LIST'
drwxr-xr-x 0/0 0 2026-01-01 00:00 kelp-1.0/
-rwxr-xr-x 0/0 10 2026-01-01 00:00 kelp-1.0/run
drwxr-xr-x 0/0 0 2026-01-01 00:00 kelp-1.0/src/
-rw-r--r-- 0/0 14 2026-01-01 00:00 kelp-1.0/src/main.cpp
END_OF_LIST

printf 'int main( ){}\n' >"$scratch/two/src/main.cpp"
"$pack" "$scratch/two" kelp-1.0 1767225600 "$scratch/two.tar.xz"
if cmp --silent "$scratch/one.tar.xz" "$scratch/two.tar.xz"; then
  echo "other sources give the same archive" >&2
  exit 1
fi
