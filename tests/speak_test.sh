#!/usr/bin/env bash
# What a voice says of what kavi reads, without ears: the words that espeak-ng reports are ours, and the
# sound is as long as breaks and rates ask for.
# Usage: speak_test.sh PATH-OF-SPEAK PATH-OF-SPEAK-BY-FLITE PATH-OF-KAVI-TN
set -uo pipefail
speak=$1 by_flite=$2 tool=$3
command -v sox >/dev/null || { echo "sox is not installed: skipped"; exit 77; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
fail() { echo "FAILED $*"; failures=$((failures + 1)); }

words_of() { "$tool" --format jsonl --fields words -t "$1" | grep -o '"word":"[^"]*"' | cut -d'"' -f4 | paste -sd' '; }
while IFS= read -r text; do
    heard=$("$speak" --words <<<"$text")
    [ "$heard" = "$(words_of "$text")" ] || fail "$text"$'\n'"  read:  $(words_of "$text")"$'\n'"  heard: $heard"
done <<'TABLE'
We have 2 cats.
It cost $5.50 at 10:30 in May 1999, ok?
Call at 10:30 or 14:05.
The year 1999 had 365 days.
It is 12.5% of 1,234,567.
The 3rd of May
He paid $20 and 3/4 of it came back.
"Yes", he said; it is 5.
<prosody=rate="2">we have <emphasis=strong>7</emphasis> dogs</prosody> now
TABLE

# seconds TEXT: of the sound, its silence at both ends taken off.
seconds() { "$speak" "$work/a.wav" "$1" >/dev/null && sox "$work/a.wav" "$work/b.wav" reverse && soxi -D "$work/a.wav"; }
# about NAME SECONDS EXPECTED TOLERANCE
about() { awk -v is="$2" -v want="$3" -v by="$4" 'BEGIN {exit !(is > want - by && is < want + by)}' || fail "$1: $2 s, not $3"; }
plain=$(seconds 'one two three four five six')
about 'a break of 500 ms' "$(awk "BEGIN {print $(seconds 'one two three<breaktime=500> four five six') - $(seconds 'one two three<breaktime=1> four five six')}")" 0.5 0.06
about 'twice the rate' "$(seconds '<prosody=rate="200%">one two three four five six</prosody>')" "$(awk "BEGIN {print $plain / 2}")" "$(awk "BEGIN {print $plain * 0.12}")"
"$by_flite" "$work/f.wav" '$5' && "$by_flite" "$work/g.wav" 'five dollars' && cmp -s "$work/f.wav" "$work/g.wav" || fail 'flite'
[ $failures = 0 ] && echo 'heard as read'
exit $((failures > 0))
