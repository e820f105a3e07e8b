#!/usr/bin/env bash
# Makes the source distribution, installs what it builds in a fresh virtual environment, without the network, and runs
# pytest and mypy on that.
# Usage: python_test.sh PROJECT PATH-OF-KAVI-TN
set -euo pipefail
export KAVI_PROJECT=$1 KAVI_TN=$2
if [ ! -e /usr/include/pybind11/pybind11.h ] || ! /usr/bin/python3 -c 'import setuptools, wheel, pytest, mypy, venv, ensurepip'; then
    echo 'pybind11, setuptools, wheel, pytest or mypy is not installed: skipped'
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
/usr/bin/python3 -m venv --system-site-packages "$work/venv"
pip() { "$work/venv/bin/python3" -m pip --quiet --disable-pip-version-check --no-cache-dir "$@"; }
# One at a time, in a folder where nothing but the last run's objects is left.
source=$1/build/sdist
mkdir -p "$source"
exec 9>"$source.lock"
flock 9
find "$source" -mindepth 1 -maxdepth 1 ! -name build -exec rm -r {} +
rm -rf "$source"/build/python/{lib,bdist}*
(cd "$1" && /usr/bin/python3 -B -c 'from setuptools import build_meta; import sys
build_meta.build_sdist(sys.argv[1])' "$work") >"$work/said" 2>&1 || { cat "$work/said"; exit 1; }
tar -xzf "$work"/kavi-*.tar.gz -C "$source" --strip-components 1
# What the README has, for what is installed already.
export PIP_NO_DEPS=1 PIP_NO_INDEX=1
(cd "$source" && eval "$(grep -oE '^    pip install .*' "$1/README.md")")
exec 9>&-
cd "$work"
ln -s "$1/tests/python" tests # pytest takes no path with brackets
"$work/venv/bin/python3" -m pytest -q -p no:cacheprovider tests
"$work/venv/bin/python3" -m mypy --strict --cache-dir "$work/mypy" -p kavi
# What pybind11 gives every class.
printf 'kavi._kavi.%s\n' '(Reader|Result|Sentence|Stream)' '(Reader|Result|Sentence|Stream).__init__' >"$work/allowed"
"$work/venv/bin/python3" -m mypy.stubtest --allowlist "$work/allowed" kavi._kavi
