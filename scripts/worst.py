"""What scripts/worst does: the dearest pairs by the clock, then their instructions."""

import os
import re
import subprocess
import sys

program, how_many = sys.argv[1], int(sys.argv[2])
FUNCTIONS = {"normalize": "eng_text_normalize", "tokenize": "eng_text_tokenize", "build": "eng_text_to_utterance_syllable"}
SHORT, LONG = 256, 4095
COST_MAX, GROWTH_MAX = 200, 1.3


def run(*arguments):
    return subprocess.run([program, *arguments], capture_output=True, check=True).stdout.decode(errors="replace")


def instructions(call, length, pair):
    counted = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
         f"--toggle-collect=kavi::PostProTnEng::{FUNCTIONS[call]}*", program, "run", call, str(length), *pair],
        capture_output=True, text=True, check=True,
        env={**os.environ,
             "LD_BIND_NOW": "1",  # what the linker looks up at a first call is not the call's
             # Nor is a string instruction one for each byte, as callgrind has it.
             "GLIBC_TUNABLES": "glibc.cpu.x86_rep_stosb_threshold=1000000000"})
    return int(re.search(r"Collected : (\d+)", counted.stderr)[1]) / int(counted.stdout)


found = [line.split() for line in run("search").splitlines()]
broken = 0
print(f"{len(found) // len(FUNCTIONS)} pairs\ncall       {SHORT:6} {LONG:6}  growth  text, again and again")
for call in FUNCTIONS:
    rows = [(float(short), float(long), (p, q)) for name, p, q, short, long in found if name == call]
    dearest = sorted(rows, key=lambda row: -max(row[0], row[1]))[:how_many]
    growing = sorted(rows, key=lambda row: -row[1] / row[0])[:how_many]
    counted = {pair: (instructions(call, SHORT, pair), instructions(call, LONG, pair)) for *_, pair in dearest + growing}
    for pair, (short, long) in sorted(counted.items(), key=lambda item: -max(item[1])):
        is_broken = max(short, long) > COST_MAX or long > GROWTH_MAX * short
        broken += is_broken
        print(f"{call:10} {short:6.1f} {long:6.1f} {long / short:7.2f}  {run('show', *pair)[:-1]!r}{'  MISSED' * is_broken}")
print(f"{broken} beyond {COST_MAX} instructions a byte or {GROWTH_MAX} times the shorter text")
sys.exit(broken > 0)
