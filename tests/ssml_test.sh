#!/usr/bin/env bash
# SSML of the golden texts and of what the fuzz targets have learnt, with marks and without: valid.
# Usage: ssml_test.sh PATH-OF-KAVI-TN TESTS-FOLDER SEEDS-FOLDER
set -euo pipefail
command -v xmllint >/dev/null || { echo "xmllint is not installed: skipped"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
valid() { xmllint --noout --huge --schema "$2/ssml.xsd" "$1" 2>"$work/log" || { cat "$work/log"; exit 1; }; }
for options in '' --marks --everyday; do
    "$1" --format ssml $options "$2/golden/input.txt" >"$work/golden.xml" 2>/dev/null
    "$1" --format ssml $options -0 "$3"/* >"$work/seeds.xml" 2>/dev/null
    valid "$work/golden.xml" "$2"
    valid "$work/seeds.xml" "$2"
done
grep -q '<prosody' "$work/seeds.xml" && grep -q '<emphasis' "$work/seeds.xml" && grep -q '<break' "$work/seeds.xml"
