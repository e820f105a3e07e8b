# What every script begins with: the project's folder, --help from the script's own head, and the
# packages it needs.
set -euo pipefail
caller=$PWD
cd "$(dirname "${BASH_SOURCE[0]}")/.."
project=$PWD
if [ "${1:-}" = --help ]; then
    sed -n '2,/^[^#]/{s/^# \{0,1\}//p}' "$0"
    exit 0
fi

# need COMMAND PACKAGE / need_file PATTERN PACKAGE / need_python MODULE PACKAGE: what the script cannot
# do without. Then install_missing: as root on a system with apt; otherwise it says what is missing,
# all at once, and ends.
missing=()
need() { command -v "$1" >/dev/null || missing+=("$2"); }
need_file() { compgen -G "$1" >/dev/null || missing+=("$2"); }
need_python() { /usr/bin/python3 -c "import $1" 2>/dev/null || missing+=("$2"); }
may_install() { [ "$(id -u)" = 0 ] && command -v apt-get >/dev/null; }
install_missing() {
    [ ${#missing[@]} -gt 0 ] || return 0
    local command=(apt-get install -q -y --no-install-recommends "${missing[@]}")
    if ! may_install; then
        printf 'Missing packages. Install them and run this again:\n    sudo %s\n' "${command[*]}" >&2
        exit 1
    fi
    say "Installing ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    local log
    log=$(mktemp)
    { apt-get update -q && "${command[@]}"; } >"$log" 2>&1 || {
        say "They could not be installed. Without the network, install them by hand; what apt said is in $log"
        exit 1
    }
    rm "$log"
    missing=()
}

# say WORDS: what takes long now.
say() { echo "$*" >&2; }

# What is built with, in this folder. `need_compiler any`: clang++ will do as well.
need_compiler() {
    [ -w "$project" ] || { say "Everything is built in $project/build, and $project cannot be written to"; exit 1; }
    need cmake cmake
    need ninja ninja-build
    [ "${1:-}" = any ] && command -v clang++ >/dev/null || need g++ g++
}

# A tree whose files git knows: a clone, or a copy for which GIT_DIR names one (scripts/mutate); a source tarball is none.
need_clone() {
    need git git
    [ -e "$project/.git" ] || [ -n "${GIT_DIR:-}" ] || { say "This asks git for the files of the project: it needs a clone, and $project is none"; exit 1; }
}

need_browser() {
    need chromium chromium
    need node nodejs
    need npm npm
}
# What the npm registry has for tests, as tests/npm locks it, in $npm_packages. False without the network.
npm_packages=$project/build/npm
install_npm_packages() {
    if cmp -s tests/npm/package-lock.json "$npm_packages/installed"; then return; fi
    mkdir -p "$npm_packages"
    cp tests/npm/package{,-lock}.json "$npm_packages"
    (cd "$npm_packages" && npm ci --silent --no-audit --no-fund --fetch-retries 1) &&
        cp tests/npm/package-lock.json "$npm_packages/installed"
}

# What the command line is built with.
need_tool_libraries() {
    need_file /usr/include/CLI/CLI.hpp libcli11-dev
    need_file /usr/include/utf8.h libutfcpp-dev
}
