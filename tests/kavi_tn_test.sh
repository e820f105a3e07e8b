#!/usr/bin/env bash
# The command line as a user types it.
# Usage: kavi_tn_test.sh PATH-OF-KAVI-TN SAMPLE [HEADING]   the table's rows under that heading alone
set -uo pipefail
tool=$(realpath "$1")
sample=$(realpath "$2")
table=$(realpath "$(dirname "$0")/tables/command_line.txt")
slurm=$(realpath "$(dirname "$0")/../scripts/cluster/slurm")
work=$(mktemp -d)
trap 'rm -rf "$work" "$work".*' EXIT
cd "$work" || exit 1
failures=0
# expect NAME EXPECTED ACTUAL
expect() {
    [ "$2" = "$3" ] && return
    printf 'FAILED %s\n  expected: %s\n  actual:   %s\n' "$1" "$2" "$3"
    failures=$((failures + 1))
}
# said COMMAND...: its first message
said() { "$@" 2>&1 >/dev/null | head -n 1; }

# is_there WHAT COMMAND...: whether it succeeds; otherwise it says that tests are skipped.
is_there() { "${@:2}" >/dev/null 2>&1 || { echo "there is no $1: its tests are skipped"; false; }; }
terminals='' network=''
is_there 'pseudo-terminal' python3 -c 'import os; os.openpty()' && terminals=yes
is_there 'network of this machine alone' python3 -c 'import socket
server = socket.create_server(("127.0.0.1", 0))
socket.create_connection(server.getsockname())' && network=yes

# Slurm that does a job at once, and a PATH with little in it.
mkdir "$work.path" "$work.bare"
cat >"$work.path/sbatch" <<'SCRIPT'
#!/usr/bin/env bash
while [ "$1" != --output ]; do [ "$1" = --array ] && parts=$2; shift; done
for SLURM_ARRAY_TASK_ID in ${parts//,/ }; do export SLURM_ARRAY_TASK_ID; "${@:3}" || echo "a task ended with $?" >&2; done
echo 1
SCRIPT
printf '#!/bin/sh\n[ -e "$0.asked" ] || { echo 1; touch "$0.asked"; }\n' >"$work.path/squeue" # the first job is waited for
chmod +x "$work.path"/*
for program in env bash realpath sed head stat mkdir diff cat mv; do ln -s "$(command -v $program)" "$work.bare"; done
slurm() { PATH=${folders:-$work.path:$PATH} "$slurm" "$@" 2>&1 | sed "s#$work/##g"; }
# The table's rows.
at_terminal() { TERM=dumb python3 -c 'import pty, sys; pty.spawn(sys.argv[1:])' "$@" | tr -d '\r'; }
PATH=$(dirname "$tool"):$PATH
heading='' row='^«(.*)» «(.*)» «(.*)»$'
while IFS= read -r line; do
    [[ $line != '# ---- '* ]] || heading=${line//[# -]/}
    [ "${3:-$heading}" = "$heading" ] || continue
    [[ $line =~ $row ]] || { case $line in '' | '#'*) continue ;; *) expect 'a row' '' "$line" ;; esac }
    [[ $line != *at_terminal* || -n $terminals ]] || continue
    name=${BASH_REMATCH[1]} command=${BASH_REMATCH[2]} expected=${BASH_REMATCH[3]}
    written=$(eval "$command" 2>&1 </dev/null; ended=$?; [ $ended = 0 ] || echo "[$ended]")
    written=${written//$'\n['/[}
    expect "$name: $command" "${expected//\$work/$work}" "${written//$'\n'/|}"
done <"$table"
[ -z "${3:-}" ] && [ $failures = 0 ] || exit $failures # what follows takes longer

# The parts of files, however many, are the run over all of them.
seq 3000 | sed 's/.*/Line & <\/poem> costs $&, and it is 10:30 in the garden & of the house now./' >long
printf '\n\n5\n\nno end 7' >short
parts() { for ((i = 1; i <= $1; ++i)); do "$tool" --part "$i/$1" --format jsonl short long short missing 2>/dev/null; done; }
whole=$("$tool" --format jsonl short long short missing 2>/dev/null | md5sum)
for n in 2 7; do expect "$n parts" "$whole" "$(parts $n | md5sum)"; done
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
[ -z "$network" ] || expect 'a failure after some text' 'a  five|kavi-tn: standard input: cannot be read: Connection reset by peer|1' "$(
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

# The output is the same bytes for every number of threads, and under GNU parallel.
for i in $(seq "${KAVI_TEST_TEXTS:-3000}"); do sed "s/paid/paid $i/" "$sample"; done >corpus
"$tool" corpus >single
for jobs in 2 5; do expect "-j $jobs" '' "$("$tool" -j $jobs corpus | cmp - single 2>&1)"; done
if is_there 'GNU parallel' command -v parallel; then
    expect 'GNU parallel' '' \
        "$(parallel --will-cite --pipe -k --block 200k -j 2 kavi-tn <corpus | cmp - single 2>&1)"
fi
expect 'a page' "$(wc -l <single)" "$("$tool" --format html corpus 2>/dev/null | grep -c '<article')"

# Whole lines when it is interrupted; a clear end when nobody reads on; bounded memory.
(while cat "$sample"; do :; done) 2>/dev/null | timeout -s INT 1 "$tool" -j 2 >cut.out 2>/dev/null
expect 'an interrupt leaves whole lines' 0 "$(tail -c 1 cut.out | od -An -c | tr -d ' ' | grep -vc '\\n')"
echo a >out
echo a >all
for signal in INT TERM HUP QUIT ALRM USR1 USR2 XCPU; do
    # A shell script has its background commands ignore SIGINT.
    mkfifo pipe && { env --default-signal=$signal "$tool" pipe -o out --findings all 2>err & } &&
        exec 3>pipe && echo a >&3 && sleep 0.2 && echo b >&3
    sleep 0.4 && kill -$signal $! && { wait $!; ended=$?; } 2>/dev/null
    exec 3>&- && rm pipe
    expect "the exit status of an interrupt by $signal" $((128 + $(kill -l $signal))) "$ended"
    expect "files that were to be written, after $signal" 'all out a a' "$(echo all* out*) $(cat all out | xargs)"
    expect 'what is said of them' 'kavi-tn: interrupted after 2 texts; out is as it was; all is as it was' "$(cat err)"
done
# A file that is mounted cannot be replaced.
if is_there 'right to mount' unshare -m mount --bind all out; then
    expect 'a mounted file is written' 'cannot write out: it is an input|a b|c' "$(unshare -m sh -c "
        echo a b >all; mount --bind all out; '$tool' out -o out; cat out; '$tool' -t c -o out; cat out; '$tool' -t '' -o out; cat out" 2>&1 | sed 's/^kavi-tn: //' | paste -sd'|')"
fi
# The output blocks, and the program ends all the same.
mkfifo pipe && exec 3<>pipe
"$tool" corpus >pipe 2>/dev/null & sleep 0.3
kill -TERM $! && { wait $!; ended=$?; }
exec 3>&- && rm pipe
expect 'an interrupt of a blocked output' 143 "$ended"
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
if [ -n "$terminals" ]; then
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
one = seconds(["corpus"] * 5) / 5
files = ["corpus"] * max(2, round(3 / max(one, 0.001)))  # three seconds, however it was compiled
size = (len(files) * os.path.getsize("corpus") + os.path.getsize("in")) / 1e6
text = told([*json, *files, "in"])  # with a message at the end
lines = text.split("\r")
shown = [re.fullmatch(r"([\d.]+) of ([\d.]+) MB, ([\d.]+) MB/s, (\d+) s left\x1b\[K", line) for line in lines]
shown = [found for found in shown if found]
steps = [float(found[1]) for found in shown]
def is_right(found):  # of what is rounded: bytes and rate to a tenth of a MB, seconds to one
    left, rate = size - float(found[1]), float(found[3])
    return (left - 0.1) / (rate + 0.06) - 0.6 < int(found[4]) < (left + 0.1) / max(rate - 0.06, 1e-3) + 0.6
print(0.3 * size < max(steps, default=0) < size + 0.1, all(found[2] == f"{size:.1f}" for found in shown), steps == sorted(steps),
      all(map(is_right, shown)), "left\x1b[K\x1b[33m" not in text,
      "left" not in told([*json, *files, "/dev/null"]), told(["-t", "a"]) == "",
      told(["-t", "a</poem>"])[:5] == "\x1b[33m",
      told(["-t", "a</poem>"], NO_COLOR="")[:5] == "\x1b[33m",
      "\x1b" in told(["-t", "a</poem>"], NO_COLOR="1") + told([files[0], "missing"], TERM="dumb"))
PYTHON
)
expect 'progress and colours' 'True True True True True True True True True False' "$terminal"
fi
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
