#!/usr/bin/env bash
# A wrong row of a table of everyday English is told with its file and line.
# Usage: tables_test.sh MAKE_TABLES.CMAKE
set -euo pipefail
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
folder="$scratch/a [1] b" # a name like this has kept tables from being found
mkdir -p "$folder/tables"
cp "$1" "$folder/make_tables.cmake"

# make REMARK ROWS: what is said of a table; its rows begin in line 5.
make() {
    printf '# Units.\n# %b\n#   glued   at once after a number\n# %b\n%b' "$1" 'written\tspoken\tkind' "$2" >"$folder/tables/units.txt"
    cmake -D FOLDER="$folder" -P "$folder/make_tables.cmake" 2>&1 | tr -s '\n ' ' '
}
# told FAULT ROWS [REMARK]
told() {
    local said
    if said=$(make "${3:-}" "$2"); then echo "FAILED: no error: $1"; exit 1; fi
    [[ $said == *"units.txt:6: $1"* ]] || { echo "FAILED: $1, but: $said"; exit 1; }
}

make '' 'µl\tmicrolitre\tglued\nkg\tkilogram\tglued\n' >/dev/null
[[ $(cat "$folder/everyday_tables.h") == *'{15, 2, 11, Kind::glued}, // "kg"'*'{0, 3, 14, Kind::glued}, // "µl"'* ]] || { echo 'FAILED: the rows in order'; exit 1; }
[[ $(cat "$folder/everyday_text.h") == *'"µl\0" "microlitre\0"'*'"kg\0" "kilogram\0"'* ]] || { echo 'FAILED: the text of the rows'; exit 1; }
good='kg\tkilogram\tglued\n'
told 'not as many fields as columns' "$good"'g\tgram\n'
told 'an empty field' "$good"'g\t\tglued\n'
told 'an empty field, or a blank beside a tab' "$good"'g \tgram\tglued\n'
told 'written in line 5 too' "$good$good"
told 'more than 62 bytes' "$good"'g\t'"$(printf 'gram %.0s' {1..13})"'m\tglued\n'
told 'the head of the table has no such kind' "$good"'g\tgram\tafter\n'
told 'never found' "$good"'G\tgram\tglued\n' 'written matches: ^[a-z]+$'
