"""What scripts/beside runs: TOOL FLITE ESPEAK"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import time

from spoken import is_said, read_cases

TOOL, FLITE, ESPEAK = sys.argv[1:4]
DOCUMENT = pathlib.Path("docs/beside.md")
PROGRAMS = {
    "kavi, the engine": [TOOL, "-j", "1", "--plain"],
    "kavi, everyday English": [TOOL, "-j", "1", "--plain", "--everyday"],
    "flite, text to words": [FLITE],
    "espeak-ng, text to phonemes": [ESPEAK],
}
TIMES = 20  # each case, for time and memory


def run(command, text):
    """What the program says, its seconds of the processor, and its most bytes of memory."""
    with tempfile.TemporaryFile("w+", errors="replace") as said, tempfile.TemporaryFile("w+") as given:
        given.write(text)
        given.seek(0)
        with subprocess.Popen(command, stdin=given, stdout=said, stderr=subprocess.DEVNULL) as process:
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
        said.seek(0)
        return said.read(), usage.ru_utime + usage.ru_stime, usage.ru_maxrss * 1024


def right(command, cases):
    """Of the cases, in percent; nothing for a program that gives no words."""
    if command == [ESPEAK]:
        return "–"
    said = run(command, "".join(written + "\n" for _, written, _ in cases))[0].split("\n")
    return f"{100 * sum(is_said(spoken, words) for (_, _, spoken), words in zip(cases, said)) / len(cases):.0f} %"


def main():
    groups = [read_cases(pathlib.Path(f"tests/quality/{name}_sealed.tsv")) for name in ("real", "traps")]
    lines = [written for cases in groups for _, written, _ in cases]
    table = ["| | real sentences, sealed | traps, sealed | a sentence | memory |", "|---|---|---|---|---|"]
    for name, command in PROGRAMS.items():
        start = run(command, "a\n")[1]
        _, seconds, memory = run(command, "".join(line + "\n" for line in lines) * TIMES)
        table.append(f"| {name} | {' | '.join(right(command, cases) for cases in groups)} |"
                     f" {1e6 * (seconds - start) / len(lines) / TIMES:.1f} µs | {memory / 1e6:.0f} MB |")
    day = time.strftime("%Y-%m-%d")
    table += ["", f"Measured on {day}: {len(lines)} sentences, {TIMES} times, by `scripts/beside`; time of one processor, without the program's start."]
    print("\n".join(table))
    old = DOCUMENT.read_text(encoding="utf-8")
    DOCUMENT.write_text(re.sub(r"(<!-- table -->\n).*?(<!-- end -->)", lambda m: m[1] + "\n".join([*table, ""]) + m[2], old, flags=re.S),
                        encoding="utf-8")


main()
