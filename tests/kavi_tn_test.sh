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
# status COMMAND...: its exit status alone; said COMMAND...: its first message
status() { "$@" >/dev/null 2>&1; echo $?; }
said() { "$@" 2>&1 >/dev/null | head -n 1; }

expect 'text' 'I have  two  cats <punc=ju>' "$("$tool" -t 'I have 2 cats.')"
expect 'standard input' 'a <punc=ju>|b' "$(printf 'a.\nb' | "$tool" | paste -sd'|')"
expect 'files in order' 'a|b|c' "$(echo a >one; echo c >three; echo b | "$tool" one - three | paste -sd'|')"
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
while IFS='|' read -r arguments message; do
    # shellcheck disable=SC2086
    expect "usage: $arguments" "kavi-tn: $message" "$(said "$tool" $arguments)"
done <<'TABLE'
--bad|no such option: --bad
--format|--format: takes a value
--format 2|--format: takes text, jsonl, html or ssml, not "2"
--marks|--marks goes with --format ssml alone
--part 0/2 x|--part: takes a part and how many there are, such as 1/4, not "0/2"
--part 3/2 x|--part: takes a part and how many there are, such as 1/4, not "3/2"
--part 1/2x x|--part: takes a part and how many there are, such as 1/4, not "1/2x"
--part 1/2 -t a|--part goes with FILEs and --format text or jsonl alone
--part 1/2 --format ssml x|--part goes with FILEs and --format text or jsonl alone
--part 1/2 /dev/null|/dev/null: cannot be read: only a regular file has parts
-j x|--jobs: takes a number from 0 to 256, not "x"
-j 257|--jobs: takes a number from 0 to 256, not "257"
--strict=x|--strict: takes no value
--words --sentences|--sentences and --words exclude each other
--words --format jsonl|--words goes with --format text alone; choose by --fields
--plain --format html|--plain goes with --format text alone
--fields line|--fields goes with --format jsonl alone
--format jsonl --fields line,x|--fields: takes names of fields with commas between them, not "line,x"
--without titles|--without goes with --everyday alone
--american-dates|--american-dates goes with --everyday alone
--everyday --without x|--without: takes names of classes with commas between them, not "x"
--check --words|--check goes with files of lines and with --lexicon and --everyday alone
--check -o out|--check goes with files of lines and with --lexicon and --everyday alone
--lexicon missing|missing: cannot be read: No such file or directory
--format jsonl --fields ,|--fields: takes names of fields with commas between them, not ","
TABLE
expect 'help' 'Usage: kavi-tn [OPTION]... [-t TEXT] [FILE]...' "$("$tool" --help --words | head -n 1)"

# The parts of files, however many, are the run over all of them.
seq 3000 | sed 's/.*/Line & <\/poem> costs $&, and it is 10:30 in the garden & of the house now./' >long
printf '\n\n5\n\nno end 7' >short
parts() { for ((i = 1; i <= $1; ++i)); do "$tool" --part "$i/$1" --format jsonl short long short missing 2>/dev/null; done; }
whole=$("$tool" --format jsonl short long short missing 2>/dev/null | md5sum)
for n in 2 7; do expect "$n parts" "$whole" "$(parts $n | md5sum)"; done
expect 'more parts than bytes' "$("$tool" --plain short)" \
    "$(for i in {1..15}; do "$tool" --plain --part "$i/15" short || echo failed; done)"
expect 'a part of standard input, a file' "$("$tool" --plain long 2>/dev/null | md5sum)" \
    "$(for i in 1 2; do "$tool" --plain --part "$i/2" <long 2>/dev/null; done | md5sum)"
# A line of more than a megabyte, with others around it, is read like short ones. Long words: for the
# bytes that they have, they are read fast.
seq 17000 | sed 's/.*/Extraordinarily incomprehensible & counterrevolutionaries notwithstanding misunderstandings now./' \
    >sentences
{ cat short && echo && tr '\n' ' ' <sentences && printf '</poem>\nlast\n' && cat short; } >longer
{ cat short && echo && cat sentences && echo 'last' && cat short; } >shorter
in_lines=$("$tool" shorter | md5sum)
expect 'a long line' "$in_lines" "$("$tool" longer 2>/dev/null | md5sum)"
yes "$(head -n 1 sentences)" | head -n 8000 >equal
expect 'parts of several blocks, cut between two texts' "$("$tool" equal | md5sum)" \
    "$(for i in 1 2; do "$tool" --part "$i/2" equal; done | md5sum)"
expect 'a finding at the end of it, and no other' "longer:6: byte $(wc -c <sentences): " \
    "$("$tool" longer 2>&1 >/dev/null | grep -o '^.*: byte [0-9]*: ')"
expect 'lines after it' '6 7 10 12' \
    "$("$tool" --format jsonl --fields line longer 2>/dev/null | grep -o '[0-9]*' | sort -nu | tail -n 4 | xargs)"
for n in 2 7; do
    expect "$n parts with it" "$in_lines" \
        "$(for ((i = 1; i <= n; ++i)); do "$tool" --part "$i/$n" longer 2>/dev/null; done | md5sum)"
done
expect 'no room for it' 'kavi-tn: longer: cannot be read: a long text needs a temporary file: File too large' \
    "$(trap '' XFSZ; ulimit -f 1300; said "$tool" longer)"
expect 'no temporary file' "$("$tool" --plain longer 2>/dev/null | md5sum)" \
    "$(trap '' XFSZ; ulimit -f 0; "$tool" --plain longer 2>/dev/null | md5sum)"

# A connection that is reset after some text.
expect 'a failure after some text' 'a  five|kavi-tn: standard input: cannot be read: Connection reset by peer|1' "$(
    python3 - "$tool" <<'PYTHON'
import socket, struct, subprocess, sys
with socket.create_server(("127.0.0.1", 0)) as server:
    theirs = socket.create_connection(server.getsockname())
    ours = server.accept()[0]
tool = subprocess.Popen([sys.argv[1]], stdin=theirs, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
theirs.close()
ours.sendall(b"a 5\n")
said = tool.stdout.readline()
ours.setsockopt(socket.SOL_SOCKET, socket.SO_LINGER, struct.pack("ii", 1, 0))  # A close without a farewell.
ours.close()
print(said.strip(), tool.communicate()[1].strip().split("\n")[-1], tool.returncode, sep="|")
PYTHON
)"

expect 'what SSML has no word for, once' 'kavi-tn: SSML has nothing for "poem=a"; it is left out' \
    "$("$tool" --format ssml -t '<poem=a>b c</poem>. <poem=a>d</poem>' 2>&1 >/dev/null)"
expect 'marks of SSML' '<s><mark name="0-1"/>a</s>' "$("$tool" --format ssml --marks -t a | sed -n 3p)"
printf '5\tfive\na 2\ta three\tA  two\n# b\nDr.\tmister\n' >cases
expect 'a check' 'cases:4: Dr.|  expected: mister|  spoken:   doctor|2 of 3 as expected' \
    "$("$tool" --check cases | paste -sd'|')"
expect 'its status' '1 0' "$(status "$tool" --check cases) $(head -n 3 cases | status "$tool" --check)"
printf 'Dr.\tdragon\nx\t5\n' >lexicon
expect 'a bad lexicon' 'kavi-tn: lexicon:2: what is spoken must be words of the letters a to z' \
    "$(said "$tool" --lexicon lexicon)"
expect 'a lexicon, and everyday English without a class' 'dragon five kilometres caf' "$(sed -i 2d lexicon
    "$tool" --plain --everyday --without letters --lexicon lexicon -t 'Dr. 5 km café' 2>/dev/null)"
expect 'version' 1 "$("$tool" --version | grep -cE '^kavi-tn [0-9]+\.[0-9]+\.[0-9]+$')"
expect 'the most threads, and the usual stage' 'a  two' "$("$tool" -j 256 --speakable -t 'a 2')"
expect 'nothing but the text' 'a' "$(echo b | "$tool" -t a)"
expect 'the last of repeated options' '{"line":1}' \
    "$("$tool" -j 9 -j 0 --format html --format jsonl --fields plain --fields line -t b -t a)"
expect 'a line for each text' $'a b, c\n\nd' "$(printf 'a b, c\n\nd' | "$tool" --plain)"
expect 'a full disk' 'kavi-tn: cannot write standard output: No space left on device' \
    "$("$tool" -t a 2>&1 >/dev/full)"
expect 'its exit status' 1 "$("$tool" -t a >/dev/full 2>/dev/null; echo $?)"
expect 'a full disk at a device' 'kavi-tn: cannot write /dev/full: No space left on device' \
    "$(said "$tool" -t a -o /dev/full)"
expect 'a closed standard output' 'kavi-tn: cannot write standard output: Bad file descriptor' \
    "$("$tool" -t a 2>&1 >&-)"
expect 'a closed standard input' 'kavi-tn: standard input: cannot be read: Bad file descriptor' \
    "$("$tool" 2>&1 <&-)"
expect 'no message in the output' 'a' "$("$tool" -t 'a</poem>' -o out 2>&- && cat out)"
echo 'a</poem>' >$'new\nline\033[31m'
expect 'a name with control characters' \
    '"new\nline\x1b[31m":1: byte 1: this closing tag closes nothing; it is left out' \
    "$(said "$tool" $'new\nline\033[31m')"
echo 'a</poem>' >$'q"\\\377\n'
expect 'a name that is no UTF-8' '"q\"\\\xff\n":1: byte 1: this closing tag closes nothing; it is left out' \
    "$(said "$tool" $'q"\\\377\n')"
expect 'tabs and line ends are text' '' "$(printf 'a\tb\tc\r\n\t\r\n' | said "$tool")"
gzip -k in && printf '\1\2\3 \4\5\n\1\2\3 \4\5\n' >binary
expect 'the first part of a compressed input' 'kavi-tn: in.gz: seems to be compressed; read it by: gzip -dc FILE | kavi-tn' \
    "$(said "$tool" --part 1/2 in.gz)"
expect 'a compressed input' \
    'kavi-tn: in.gz: seems to be compressed; read it by: gzip -dc FILE | kavi-tn' "$(said "$tool" in.gz)"
expect 'a binary input' 'kavi-tn: binary: seems to be binary, not text' "$(said "$tool" binary)"
expect 'its second part' '' "$(said "$tool" --part 2/2 binary)"
expect 'NUL bytes that end texts' '' "$(printf 'a\0b\0' | said "$tool" -0)"

# The output is the same bytes for every number of threads, and under GNU parallel.
for i in $(seq "${KAVI_TEST_TEXTS:-3000}"); do sed "s/paid/paid $i/" "$sample"; done >corpus
"$tool" corpus >single
for jobs in 2 5; do expect "-j $jobs" '' "$("$tool" -j $jobs corpus | cmp - single 2>&1)"; done
if command -v parallel >/dev/null; then
    expect 'GNU parallel' '' \
        "$(parallel --will-cite --pipe -k --block 200k -j 2 "$tool" <corpus | cmp - single 2>&1)"
fi
expect 'a page' "$(wc -l <single)" "$("$tool" --format html corpus 2>/dev/null | grep -c '<article')"

# Whole lines when it is interrupted; a clear end when nobody reads on; bounded memory.
(while cat "$sample"; do :; done) 2>/dev/null | timeout -s INT 1 "$tool" -j 2 >cut.out 2>/dev/null
expect 'an interrupt leaves whole lines' 0 "$(tail -c 1 cut.out | od -An -c | tr -d ' ' | grep -vc '\\n')"
echo a >out
for signal in INT TERM; do
    # A shell script has its background commands ignore SIGINT.
    mkfifo pipe && { env --default-signal=INT "$tool" pipe -o out 2>err & } &&
        exec 3>pipe && echo a >&3 && sleep 0.2 && echo b >&3
    sleep 0.4 && kill -$signal $! && { wait $!; ended=$?; }
    exec 3>&- && rm pipe
    expect "the exit status of an interrupt by $signal" $((128 + $(kill -l $signal))) "$ended"
    expect "a file that was to be written, after $signal" 'a' "$(cat out)"
    expect "what is said of it" 'kavi-tn: interrupted after 2 texts; out is as it was' "$(cat err)"
done
# The output blocks, and the program ends all the same.
mkfifo pipe && exec 3<>pipe
"$tool" corpus >pipe 2>/dev/null & sleep 0.3
began=$(date +%s%N) && kill -TERM $! && { wait $!; ended=$?; }
exec 3>&- && rm pipe
expect 'an interrupt of a blocked output, within a second' '143 0' \
    "$ended $((($(date +%s%N) - began) / 1000000000))"
mkfifo pipe
"$tool" pipe >out 2>/dev/null & exec 3>pipe && echo a >&3
sleep 0.3 && kill -INT $! && echo b >&3 && exec 3>&- && { wait $!; ended=$?; } && rm pipe
expect 'an interrupt that was ignored' '0 a b' "$ended $(paste -sd' ' out)"
"$tool" corpus 2>err | head -n 1 >/dev/null
expect 'a reader that goes away' '141 ' "${PIPESTATUS[0]} $(cat err)"
(trap '' PIPE; "$tool" corpus 2>err; echo $? >ended) | head -n 1 >/dev/null
expect 'the same with SIGPIPE ignored' '1 kavi-tn: cannot write standard output: Broken pipe' \
    "$(cat ended err | paste -sd' ')"

# At a terminal: announced, answered line by line, one end of file is the end.
terminal=$(python3 - "$tool" <<'PYTHON'
import os, pty, select, sys
child, terminal = pty.fork()
if child == 0:
    os.environ["TERM"] = "xterm"
    os.execv(sys.argv[1], [sys.argv[1]])
def answer(part):
    text = b""
    while part not in text and select.select([terminal], [], [], 10)[0]:
        text += os.read(terminal, 1000)
    return part in text
told = answer(b"reading from the terminal; Ctrl-D on a line of its own ends it")
os.write(terminal, b"a 2\n")
first = answer(b"a  two")
os.write(terminal, b"b 3\n")
second = answer(b"b  three")
os.write(terminal, b"\x04")
print(told, first, second, os.waitpid(child, 0)[1])
PYTHON
)
expect 'a terminal' 'True True True 0' "$terminal"

# Progress and colours on a terminal that has them.
terminal=$(python3 - "$tool" <<'PYTHON'
import os, pty, re, subprocess, sys, time
json = ["--format", "jsonl"]  # so much that a block is written in pieces
def seconds(files):
    began = time.monotonic()
    subprocess.run([sys.argv[1], *json, *files], stdout=subprocess.DEVNULL, check=True)
    return time.monotonic() - began
def told(arguments, **environment):
    child, terminal = pty.fork()
    if child == 0:
        os.environ.pop("NO_COLOR", None)
        os.environ.update({"TERM": "xterm", **environment})
        os.dup2(os.open("/dev/null", os.O_WRONLY), 1)
        os.execv(sys.argv[1], [sys.argv[1], *arguments])
    text = b""
    try:
        while part := os.read(terminal, 10000):
            text += part
    except OSError:
        pass
    os.waitpid(child, 0)
    return text.decode()
one = (seconds(["corpus"] * 5) - seconds(["corpus"])) / 4
files = ["corpus"] * max(2, round(3 / max(one, 0.001)))  # three seconds, however it was compiled
size = len(files) * os.path.getsize("corpus") / 1e6
text = told([*json, *files, "in"])  # with a message at the end
lines = text.split("\r")
shown = [re.fullmatch(r"([\d.]+) of ([\d.]+) MB, ([\d.]+) MB/s, (\d+) s left\x1b\[K", line) for line in lines]
shown = [found for found in shown if found]
steps = [float(found[1]) for found in shown]
def is_right(found):  # as far as the rate is told, to a tenth
    rate = float(found[3])
    left = (size - float(found[1])) / max(rate, 0.1)
    return abs(left - int(found[4])) < 1.1 + left * 0.06 / max(rate, 0.1)
print(0.3 * size < max(steps, default=0) < size + 0.1, all(found[2] == f"{size:.1f}" for found in shown), steps == sorted(steps),
      all(map(is_right, shown)), "left\x1b[K\x1b[33m" not in text,
      "left" not in told([*json, *files, "/dev/null"]), told(["-t", "a"]) == "",
      told(["-t", "a</poem>"])[:5] == "\x1b[33m",
      told(["-t", "a</poem>"], NO_COLOR="")[:5] == "\x1b[33m",
      "\x1b" in told(["-t", "a</poem>"], NO_COLOR="1") + told([files[0], "missing"], TERM="dumb"))
PYTHON
)
expect 'progress and colours' 'True True True True True True True True True False' "$terminal"
limited() { (ulimit -v 600000; "$@"); }
if [ -z "${KAVI_TEST_TEXTS:-}" ] && limited "$tool" --version >/dev/null 2>&1; then # a sanitizer alone takes more
    expect 'everyday English on a long line in bounded memory' '' \
        "$(head -c 100000000 /dev/zero | tr '\0' 'a' | (ulimit -d 60000; said "$tool" -j 2 --everyday))"
    many() { yes 'Extraordinarily incomprehensible counterrevolutionaries misunderstand 5.' | head -n 900000; }
    expect 'a long line in bounded memory' "$(many | "$tool" | md5sum)" \
        "$(many | tr '\n' ' ' | (ulimit -d 60000; "$tool") | md5sum)"
    expect 'no memory for threads' 'kavi-tn: cannot start a thread: Resource temporarily unavailable' \
        "$(ulimit -v 200000; said "$tool" -j 256 corpus)"
    expect 'bounded memory' 4285715 \
        "$(head -c 300000000 /dev/zero | tr '\0' 'a' | fold -w 70 | limited "$tool" -j 2 | wc -l)"
fi
expect 'no colour and no progress off a terminal' 0 "$("$tool" corpus missing 2>&1 >/dev/null | grep -c $'\033')"

[ $failures = 0 ] && echo 'all as expected'
exit $failures
