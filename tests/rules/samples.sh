# Read by the tests of this project's checks: a check is tried on samples that are right and wrong.
#
# Offers $scratch, a folder that goes at the end, and two functions.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
failures=0

# expect accepted|refused WHAT COMMAND...: runs the command, which exits with 0, or does not.
expect() {
  wanted=$1
  what=$2
  shift 2
  verdict=refused
  if "$@" >/dev/null 2>&1; then verdict=accepted; fi
  if [ "$verdict" != "$wanted" ]; then
    echo "$verdict: $what" >&2
    failures=$((failures + 1))
  fi
}

# end_of_samples: the last line of a test.
end_of_samples() {
  if [ "$failures" -ne 0 ]; then exit 1; fi
  echo "every sample is judged as it should be"
}
