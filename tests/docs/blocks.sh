# Sourced by the scripts that do what a page says.

# block_of PAGE LANGUAGE NUMBER: one of the code blocks of a page.
block_of() {
  awk -v fence="\`\`\`$2" -v wanted="$3" '
    /^```/ { inside = !inside; counts = inside && $0 == fence; count += counts; next }
    inside && counts && count == wanted
  ' "$1"
}
