# Sourced by scripts/release.sh and scripts/check_thoroughly.sh: the conditions of a release, and the
# mark that a commit has passed the thorough checks.

# thorough_mark COMMIT: the file that says so.
thorough_mark() {
  echo "build/passed_thorough_checks_of_$1"
}

# committed_state: the commit, if the files are those of a commit; nothing if some were changed.
committed_state() {
  local commit
  commit=$(git rev-parse --verify --quiet HEAD) || return 0
  [ -n "$(git status --porcelain)" ] || echo "$commit"
}

# reasons_against_a_release: one on each line, and nothing if there are none.
reasons_against_a_release() {
  local commit
  if ! commit=$(git rev-parse --verify --quiet HEAD); then
    echo "this folder is no checkout of a git repository, and a release is made of a commit"
    return 0
  fi
  if [ -n "$(git status --porcelain)" ]; then
    echo "there are files that differ from the commit $commit; commit or remove them"
  fi
  # The caller refuses a release because of what is said, and says all of it at once.
  { sh tests/rules/check_versions.sh --release . >/dev/null || true; } 2>&1
  if [ ! -f "$(thorough_mark "$commit")" ]; then
    echo "scripts/check_thoroughly.sh was not seen to pass on the commit $commit; run it"
  fi
}
