# Prepares a header for the reference, without moving a line:
#
# - Copying, moving and destroying do what they always do and need no entries, nor have their comments a
#   place.
# - Overloads that are deleted, since they only refuse what is not a text, need none either.
# - A comment counts for all declarations below it up to the next empty line, overloads for the
#   most part; Doxygen gives it to the first one only, so it is repeated for the others.
# - The headers of the sister libraries begin with an ordinary comment, which is their description.

function print_comment(    i) {
  for (i = 1; i <= held; ++i) print lines[i]
  held = 0
}

function leave_out_comment(    i) {
  for (i = 1; i <= held; ++i) print ""
  held = 0
}

FILENAME ~ /src\/support\// && /^$/ && !is_described { print "/// @file"; is_described = 1; next }
FILENAME ~ /src\/support\// && /^\/\/( |$)/ { sub(/^\/\//, "///") }

/= default;$/ || /~[A-Za-z]+\(\);$/ || /\(const [A-Za-z]+& other\);$/ {
  leave_out_comment()
  print ""
  is_comment = 0
  is_complete = 1
  next
}

/^ *template </ && !is_comment { is_deleted = 1 }
is_deleted { print ""; is_deleted = !/;$/; next }

/^ *\/\/\/( |$)/ {
  text = $0
  sub(/^ *\/\/\/ ?/, "", text)
  comment = is_comment ? comment " " text : text
  is_comment = 1
  lines[++held] = $0
  next
}

{ print_comment() }

/^ *$/ { comment = "" }

/^ *(\[\[nodiscard\]\]|KELP_QUILL_(INP|LOSSLESS)_EXPORT|const|[A-Za-z:]+) / && !is_comment && comment != "" && is_complete {
  print "/** " comment " */ " $0
  is_complete = /[;}]$/
  next
}

{
  is_comment = 0
  is_complete = /[;}]$/
  print
}

END { print_comment() }
