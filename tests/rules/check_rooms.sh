#!/bin/sh
# Fails when a file includes one of a folder that its own folder may not know:
#
#   check_rooms.sh PROJECT TABLE
#
# Each line of the table has a folder, a colon and the folders that its files may include besides
# their own; a folder stands for all below it that have no line. A folder may include only those of
# later lines, so that every arrow points down. Also fails for an arrow of the table that no file
# needs, for a file in no folder of the table, for headers that include one another in a circle, and
# for a chain of more than eight folders within the program.
set -eu
export LC_ALL=C

project=$1
table=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

cd "$project"
find include src sisters lossless tools python -name '*.[ch]pp' | sort >"$scratch/files"
if [ ! -s "$scratch/files" ]; then
  echo "there are no sources in $project" >&2
  exit 1
fi
xargs grep -nH '^#include "' <"$scratch/files" >"$scratch/includes"

awk -v edges="$scratch/edges" '
  function fail(text) { print text > "/dev/stderr"; failures++ }
  function folder_of(path) { sub(/\/[^\/]*$/, "", path); return path }
  function room_of(path) {
    for (path = folder_of(path); !(path in place); path = folder_of(path))
      if (path !~ /\//) return ""
    return path
  }
  function resolve(name, from, i, path) {
    path = folder_of(from) "/" name
    if (path in is_file) return path
    for (i = 1; i <= roots; i++) if ((root[i] "/" name) in is_file) return root[i] "/" name
    return ""
  }
  # The number of rooms in the longest chain that begins with this one.
  function depth_of(room, i, targets, deepest, depth) {
    if (room in depth_known) return depth_known[room]
    deepest = 0
    for (i = place[room] + 1; i <= rooms; i++) {
      if (!((room, name_at[i]) in may_include) || name_at[i] !~ /^tools\/quill-inp/) continue
      depth = depth_of(name_at[i])
      if (depth > deepest) deepest = depth
    }
    return depth_known[room] = deepest + 1
  }
  BEGIN { roots = split("include src/support src lossless tools python", root, " ") }
  FILENAME == ARGV[1] {
    if ($0 ~ /^(#|$)/) next
    room = $1
    sub(/:$/, "", room)
    place[room] = ++rooms
    name_at[rooms] = room
    for (i = 2; i <= NF; i++) may_include[room, $i] = 1
    next
  }
  FILENAME == ARGV[2] {
    is_file[$0] = 1
    if (room_of($0) == "") fail($0 ": is in no folder of the table")
    next
  }
  {
    split($0, parts, ":")
    name = $0
    sub(/^[^"]*"/, "", name)
    sub(/".*/, "", name)
    to = resolve(name, parts[1])
    if (to == "") { fail(parts[1] ":" parts[2] ": there is no \"" name "\""); next }
    print parts[1], to > edges
    from_room = room_of(parts[1])
    to_room = room_of(to)
    if (from_room == to_room) next
    is_used[from_room, to_room] = 1
    if (!((from_room, to_room) in may_include))
      fail(parts[1] ":" parts[2] ": " from_room " may not include " to_room)
  }
  END {
    for (arrow in may_include) {
      split(arrow, ends, SUBSEP)
      if (!(ends[2] in place)) fail(ends[1] ": there is no line for " ends[2])
      else if (place[ends[2]] <= place[ends[1]]) fail(ends[1] ": " ends[2] " is not below it")
      else if (!(arrow in is_used)) fail(ends[1] ": no file includes one of " ends[2])
    }
    if (failures == 0 && depth_of("tools/quill-inp") > 8)
      fail("tools/quill-inp: a chain of " depth_of("tools/quill-inp") " folders")
    exit failures != 0
  }
' "$table" "$scratch/files" "$scratch/includes"

if ! tsort "$scratch/edges" >/dev/null 2>"$scratch/circles"; then
  echo "these files include one another in a circle:" >&2
  sed -n 's/^tsort: \([^ ]*\.[ch]pp\)$/  \1/p' "$scratch/circles" >&2
  exit 1
fi
echo "$(wc -l <"$scratch/includes") includes keep to the table"
