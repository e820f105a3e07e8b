#!/usr/bin/env bash
# A program in Go that calls the C functions by way of pkg-config, from the build tree.
# Usage: from_go_test.sh FOLDER BUILD-TREE
set -euo pipefail
if ! command -v go >/dev/null; then
    echo 'go is not installed: skipped'
    exit 77
fi
if [[ $2 == *' '* ]]; then
    echo 'go takes no library from pkg-config in a folder with a blank in its name: skipped'
    exit 77
fi
export GO111MODULE=off CGO_ENABLED=1 PKG_CONFIG_PATH=$2 LD_LIBRARY_PATH=$2
cd "$1"
[ "$(go run main.go)" = 'doctor Smith paid five dollars fifty cents on the third of January two thousand twenty, ok?' ]
