#!/usr/bin/env bash
# SSML of the golden texts and of what the fuzz targets have learnt, with marks and without: valid.
# Usage: ssml_test.sh PATH-OF-KAVI-TN TESTS-FOLDER SEEDS-FOLDER
set -euo pipefail
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
# Markup of all kinds, with values that the standard knows and others.
for name in rate pitch volume emphasis breaktime; do
    for value in fast 2 150% 1.5 +3st -10% 200Hz loud +6dB high strong x 500 99999999999 '<' '&'; do
        case $name in
            emphasis) echo "a <emphasis=$value>b</emphasis> c" ;;
            breaktime) echo "a<breaktime=$value> b" ;;
            *) echo "<prosody=$name=\"$value\">a <emphasis=strong>b</emphasis></prosody> c" ;;
        esac
    done
done | "$1" --format ssml - >"$work/values.xml" 2>/dev/null
valid "$work/values.xml" "$2"
