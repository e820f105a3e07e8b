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

# install PACKAGE: as root on a system with apt; otherwise says what is missing and ends.
install() {
    if [ "$(id -u)" != 0 ] || ! command -v apt-get >/dev/null; then
        echo "Missing: the package $1. Install it and run this again." >&2
        exit 1
    fi
    echo "Installing $1" >&2
    export DEBIAN_FRONTEND=noninteractive
    [ -n "${apt_updated:-}" ] || apt-get update -q >/dev/null
    apt_updated=yes
    apt-get install -q -y --no-install-recommends "$1" >/dev/null
}

# need COMMAND PACKAGE / need_file PATTERN PACKAGE: what the script cannot do without.
need() { command -v "$1" >/dev/null || install "$2"; }
need_file() { compgen -G "$1" >/dev/null || install "$2"; }

need_compiler() {
    need cmake cmake
    need ninja ninja-build
    need g++ g++
}

# What the command line is built with.
need_tool_libraries() {
    need_file /usr/include/CLI/CLI.hpp libcli11-dev
    need_file /usr/include/nlohmann/json.hpp nlohmann-json3-dev
    need_file /usr/include/utf8.h libutfcpp-dev
}
