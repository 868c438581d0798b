# Sourced by scripts that use packages of npm: installs exactly those of a lock file, and only when they
# are not installed yet, so that nothing is downloaded after that.

# install_npm_packages FOLDER INTO: the packages that FOLDER/package-lock.json lists, in INTO/node_modules.
install_npm_packages() {
  local folder=$1 into=$2 log=$2/npm.log
  if ! command -v npm >/dev/null; then need_packages nodejs npm; fi
  mkdir -p "$into"
  if cmp -s "$folder/package-lock.json" "$into/node_modules/installed-lock.json"; then return 0; fi
  cp "$folder"/package.json "$folder"/package-lock.json "$folder"/.npmrc "$into"
  if ! (cd "$into" && npm ci --ignore-scripts --no-audit --no-fund) >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    return 1
  fi
  cp "$folder/package-lock.json" "$into/node_modules/installed-lock.json"
}
