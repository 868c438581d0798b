#!/usr/bin/env bash
# The program as what git calls for differences of inputs: as a diff command, for one call, and as the
# text that git compares. Without git, nothing is tested, and the last line says so.
#
#   git_diff_test.sh PROGRAM PAGE
#
# The page is the one that tells how to set this up.
set -euo pipefail
export LC_ALL=C.UTF-8 GIT_CONFIG_NOSYSTEM=1 GIT_PAGER=cat
program=$1
page=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export HOME=$scratch

if ! command -v git >/dev/null; then
  echo 'left out: there is no git'
  exit 0
fi

# expect NAME EXPECTED FOUND
expect() {
  [ "$2" = "$3" ] && return 0
  printf '%s: expected\n%s\nand found\n%s\n' "$1" "$2" "$3" >&2
  exit 1
}

for setting in "echo '*.qin diff=quill' >> .gitattributes" \
  "git config diff.quill.command 'quill-inp diff --git'" \
  "git config diff.quill.textconv 'quill-inp fmt --allow-loss'" \
  "GIT_EXTERNAL_DIFF='quill-inp diff --git'"; do
  grep -qF -- "$setting" "$page" || { echo "the page does not say: $setting" >&2; exit 1; }
done

mkdir "$scratch/jobs" && cd "$scratch/jobs"
git init -q .
git config user.name tester
git config user.email tester@example.org
echo '*.qin diff=quill' >.gitattributes
printf '#opt(maxiter=50)\n0 1\nO 0 0 0.117\nH 0 0.757 -0.469\nH 0 -0.757 -0.469\n' >water.qin
printf '#sp\n0 1\nHe 0 0 0\n' >helium.qin
git add . && git commit -qm 'Two inputs'

# The layout of one changes, and what it says, too; another one goes, and a new one comes.
printf '# opt ( maxiter = 100 )\n\n0 1\nO 0 0 .117\nH 0 .757 -.469\nH 0 -.757 -.369\n' >water.qin
git mv helium.qin neon.qin
printf '#sp\n0 1\nNe 1 1 1\n' >'a new one.qin'
git add -N 'a new one.qin'

wanted="--- a/water.qin
+++ b/water.qin
! #opt: maxiter=50 -> maxiter=100
! atom 3 moved by 0.1"
expect 'one call' "$wanted" "$(GIT_EXTERNAL_DIFF="$program diff --git" git diff water.qin)"

git config diff.quill.command "'$program' diff --git"
expect 'a diff command' "$wanted" "$(git diff water.qin)"
expect 'a new file' '--- /dev/null
+++ b/a new one.qin
+ #sp
! coordinates: none -> atoms
+ atom 1: Ne 1 1 1' "$(git diff 'a new one.qin')"
expect 'a removed file' '--- a/helium.qin
+++ /dev/null
- #sp
! coordinates: atoms -> none
- atom 1: He 0 0 0' "$(git diff --no-renames HEAD -- helium.qin)"
git diff >/dev/null || { echo 'differences of several files end git diff' >&2; exit 1; }
expect 'a log' "$(git log -1 --format=%s)" "$(git log -1 --format=%s --ext-diff)"

git config --unset diff.quill.command
git config diff.quill.textconv "'$program' fmt --allow-loss"
expect 'as text' '-#opt(maxiter=50)
+#opt(maxiter=100)
-H        0.000000     -0.757000     -0.469000
+H        0.000000     -0.757000     -0.369000' "$(git diff water.qin | sed -n '/^@@/,$p' | grep '^[-+]')"
echo 'git shows differences of inputs'
