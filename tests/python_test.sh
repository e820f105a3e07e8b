#!/usr/bin/env bash
# Builds the wheel in a fresh virtual environment, without the network, and runs pytest and mypy on
# what it installs there.
# Usage: python_test.sh PROJECT
set -euo pipefail
export KAVI_PROJECT=$1
if [ ! -e /usr/include/pybind11/pybind11.h ] || ! /usr/bin/python3 -c 'import setuptools, wheel, pytest, mypy, venv, ensurepip'; then
    echo 'pybind11, setuptools, wheel, pytest or mypy is not installed: skipped'
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
/usr/bin/python3 -m venv --system-site-packages "$work/venv"
pip() { "$work/venv/bin/python3" -m pip --quiet --disable-pip-version-check --no-cache-dir "$@"; }
# One at a time, and with no module in the wheel that an earlier run has left.
mkdir -p "$1/build"
exec 9>"$1/build/python.lock"
flock 9
rm -rf "$1/python/build"
pip wheel --no-build-isolation --no-deps --no-index --wheel-dir "$work" "$1/python"
exec 9>&-
pip install --no-deps --no-index "$work"/kavi-*.whl
cd "$work"
ln -s "$1/tests/python" tests # pytest takes no path with brackets
"$work/venv/bin/python3" -m pytest -q -p no:cacheprovider tests
"$work/venv/bin/python3" -m mypy --strict --cache-dir "$work/mypy" -p kavi
# What pybind11 gives every class.
printf 'kavi._kavi.%s\n' '(Reader|Result|Sentence|Stream)' '(Reader|Result|Sentence|Stream).__init__' >"$work/allowed"
"$work/venv/bin/python3" -m mypy.stubtest --allowlist "$work/allowed" kavi._kavi
