"""What the commands of scripts/bench share: counts of instructions, times, and goals."""

import os
import re
import statistics
import subprocess
import sys
import time

# By how much a figure may miss its goal and still hold: counts hardly differ from run to run, times do.
COUNTED = 0.01
TIMED = 0.05
missed = 0


def instructions(command, function=None):
    """Those of a command, or of one function and what it calls; and what the command wrote.
    Large memory is cleared and copied by one string instruction, which callgrind counts for each byte again; so the C
    library is told to do it piece by piece."""
    only = [f"--toggle-collect={function}*"] if function else []
    run = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", *only, *command],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=True,
        env={**os.environ, "GLIBC_TUNABLES": "glibc.cpu.x86_rep_stosb_threshold=1000000000:"
                                             "glibc.cpu.x86_rep_movsb_threshold=1000000000"})
    return int(re.search(rb"Collected : (\d+)", run.stderr)[1]), run.stdout


def median_seconds(work, times=7):
    """The median of `times` runs, by the clock."""
    seconds = []
    for _ in range(times):
        begin = time.perf_counter()
        work()
        seconds.append(time.perf_counter() - begin)
    return statistics.median(seconds)


def goal(text, figure, *, most=None, least=None, noise=COUNTED):
    """Prints whether it is reached; end() fails when one is missed by more than the noise."""
    global missed
    holds = figure <= most * (1 + noise) if most is not None else figure >= least * (1 - noise)
    missed += not holds
    bound = f"at most {most}" if most is not None else f"at least {least}"
    print(f"{'holds ' if holds else 'MISSED'}  {text} ({bound}): {figure:.2f}", flush=True)


def end():
    print(f"{missed} goals missed")
    sys.exit(missed > 0)
