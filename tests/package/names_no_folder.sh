#!/bin/sh
# Fails when a file of an installation names a folder of the machine that it was built on:
#
#   names_no_folder.sh INSTALLATION FOLDER...
set -eu

installation=$1
shift
if [ ! -d "$installation" ]; then
  echo "there is no $installation" >&2
  exit 1
fi
for folder in "$@"; do
  if grep -rF -- "$folder" "$installation"; then
    echo "the lines above name $folder" >&2
    exit 1
  fi
done
