#!/usr/bin/env bash
# Packs the sources in a folder; the same files and time always give the same bytes. Modes are those that
# git knows, so it does not matter how the folder came about.
#
#   source_archive.sh FOLDER NAME TIME ARCHIVE.tar.xz
#
# The files are put into a folder NAME, with TIME (seconds since 1970) as their time.
set -euo pipefail
export LC_ALL=C TZ=UTC

tar --create --directory="$1" --sort=name --owner=0 --group=0 --numeric-owner --mtime="@$3" \
  --mode=u=rwX,go=rX --format=ustar --transform="s,^\.,$2," . | xz --threads=1 -9 >"$4"
