#!/usr/bin/env bash
# The command line as a user types it. Usage: kavi_tn_test.sh PATH-OF-KAVI-TN SAMPLE
set -uo pipefail
tool=$(realpath "$1") sample=$(realpath "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 1
failures=0
# expect NAME EXPECTED ACTUAL
expect() {
    [ "$2" = "$3" ] && return
    printf 'FAILED %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
    failures=$((failures + 1))
}
# status COMMAND...: its exit status alone
status() { "$@" >/dev/null 2>&1; echo $?; }

expect 'text' 'I have  two  cats <punc=ju>' "$("$tool" -t 'I have 2 cats.')"
expect 'standard input' 'a <punc=ju>|b' "$(printf 'a.\nb' | "$tool" | paste -sd'|')"
expect 'files in order' 'a|b|c' "$(echo a >1; echo c >3; echo b | "$tool" 1 - 3 | paste -sd'|')"
expect 'NUL-separated texts' 'a b|c' "$(printf 'a\nb\0c' | "$tool" -0 | sed 's/  */ /g' | paste -sd'|')"
expect 'an output file' 'a' "$("$tool" -t a -o out && cat out)"
expect 'an unreadable file, others written' $'a\na\n1' \
    "$(echo a >in; "$tool" in missing in 2>/dev/null; echo $?)"
expect 'output onto the input' 'a  two' "$(echo 'a 2' >in; "$tool" in -o in && cat in)"
expect 'an output that an input is missing for' 'as before' \
    "$(echo 'as before' >out; "$tool" in missing -o out 2>/dev/null || cat out)"
expect 'a finding with --strict' 1 "$(echo 'a</poem>' >in; status "$tool" --strict in)"
expect 'a finding without' 0 "$(status "$tool" in)"
expect 'the summary' 'kavi-tn: 1 stray-closing-tag: this closing tag closes nothing; it is left out' \
    "$("$tool" --summary in 2>&1 >/dev/null | tail -n 1)"
expect 'wrong usage' 2 "$(status "$tool" --bad)"
expect 'two stages' 2 "$(status "$tool" --words --sentences -t a)"
expect 'help' 0 "$(status "$tool" --help)"
expect 'a full disk' 'kavi-tn: cannot write: No space left on device' "$("$tool" -t a 2>&1 >/dev/full)"
expect 'its exit status' 1 "$("$tool" -t a >/dev/full 2>/dev/null; echo $?)"

# The output is the same bytes for every number of threads, and under GNU parallel.
for i in $(seq 3000); do sed "s/paid/paid $i/" "$sample"; done >corpus
"$tool" corpus >single
for jobs in 2 5; do expect "-j $jobs" '' "$("$tool" -j $jobs corpus | cmp - single 2>&1)"; done
if command -v parallel >/dev/null; then
    expect 'GNU parallel' '' \
        "$(parallel --will-cite --pipe -k --block 200k -j 2 "$tool" <corpus | cmp - single 2>&1)"
fi
expect 'a page' "$(wc -l <single)" "$("$tool" --format html corpus 2>/dev/null | grep -c '^<article')"

# Whole lines when it is interrupted; a clear end when nobody reads on; bounded memory.
(while cat "$sample"; do :; done) 2>/dev/null | timeout -s INT 1 "$tool" -j 2 >cut 2>/dev/null
expect 'an interrupt leaves whole lines' 0 "$(tail -c 1 cut | od -An -c | tr -d ' ' | grep -vc '\\n')"
echo a >out
for signal in INT TERM; do
    mkfifo pipe && { "$tool" pipe -o out 2>/dev/null & } && exec 3>pipe && echo a >&3
    sleep 0.3 && kill -$signal $! && { wait $!; ended=$?; }
    exec 3>&- && rm pipe
    expect "the exit status of an interrupt by $signal" 130 "$ended"
    expect "a file that was to be written, after $signal" 'a' "$(cat out)"
done
"$tool" corpus 2>err | head -n 1 >/dev/null
expect 'a closed pipe' 'kavi-tn: cannot write: Broken pipe' "$(cat err)"
limited() { (ulimit -v 600000; "$@"); }
if limited "$tool" --version >/dev/null 2>&1; then # a sanitizer alone takes more
    expect 'bounded memory' 4285715 \
        "$(head -c 300000000 /dev/zero | tr '\0' 'a' | fold -w 70 | limited "$tool" -j 2 | wc -l)"
fi
expect 'no colour and no progress off a terminal' 0 "$("$tool" corpus missing 2>&1 >/dev/null | grep -c $'\033')"

[ $failures = 0 ] && echo 'all as expected'
exit $failures
