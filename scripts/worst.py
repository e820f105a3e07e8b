"""What scripts/worst does: the dearest pairs by the clock, then their instructions."""

import json
import os
import pathlib
import re
import subprocess
import sys

KNOWN = pathlib.Path("bench/worst.txt")
CALLS = ["normalize", "tokenize", "build"]  # each sees one sentence at most, so its cost is bounded, not its growth
COST_MAX = 420  # instructions a byte of a call: ten times what prose takes in all three
GROWTH_MAX = 1.3
LONGEST = 65536  # bytes, where what is read is not one sentence

program, *arguments = sys.argv[1:]


def run(*parts):
    return subprocess.run([program, *parts], capture_output=True, check=True).stdout


LAYERS = {name: (int(short), int(long)) for name, short, long in (line.split() for line in run("layers").decode().splitlines())}


def instructions(layer, length, unit):
    """Those of a byte of the unit, said again and again up to that length."""
    counted = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
         "--toggle-collect=*kavi::bench::*measured*", program, "run", layer, str(length), unit],
        capture_output=True, check=False,
        env={**os.environ,
             "LD_BIND_NOW": "1",  # what the linker looks up at a first call is not the call's
             # Nor is a string instruction one for each byte, as callgrind has it.
             "GLIBC_TUNABLES": "glibc.cpu.x86_rep_stosb_threshold=1000000000"})
    if counted.returncode != 0:
        return float("inf")  # it did not live through it
    return int(re.search(rb"Collected : (\d+)", counted.stderr)[1]) / int(counted.stdout)


def shown(unit):
    return json.dumps(unit.decode(errors="surrogateescape"), ensure_ascii=False).encode(errors="backslashreplace").decode()


def check(layer, unit, lengths):
    """Counts one unit at all lengths, or until a longer text costs too much more; whether it keeps the bounds."""
    costs = []
    for length in lengths:
        costs.append(instructions(layer, length, unit))
        missed = costs[-1] > COST_MAX if layer in CALLS else costs[-1] > GROWTH_MAX * costs[0]
        if missed:
            break
    print(f"{layer:10}{''.join(f'{cost:8.1f}' for cost in costs):24} {costs[-1] / costs[0]:7.2f}  {shown(unit)}"
          f"{'  MISSED' * missed}", flush=True)
    return not missed


def lengths_of(layer, longest):
    short, long = LAYERS[layer]
    return (short, long) if layer in CALLS else (short, long, longest)[:2 if longest <= long else 3]


def search(layers, how_many):
    """The pairs that cost most by the clock, and those that grow most, counted. Those beyond a bound."""
    broken = 0
    for layer in layers:
        rows = []
        for line in run("search", layer).decode().splitlines():
            _, p, q, short, long = line.split()
            rows.append((float(short), float(long), (p, q)))
        dearest = sorted(rows, key=lambda row: -row[1])[:how_many]
        growing = sorted(rows, key=lambda row: -row[1] / row[0])[:how_many]
        pairs = dict.fromkeys(pair for *_, pair in growing + dearest)
        print(f"{layer}: {len(rows)} pairs, {len(pairs)} of them counted", flush=True)
        for pair in pairs:
            broken += not check(layer, run("show", *pair), lengths_of(layer, LONGEST))
    return broken


def check_known():
    broken = 0
    for line in KNOWN.read_text(encoding="utf-8").splitlines():
        if line and not line.startswith("#"):
            layer, unit = line.split(maxsplit=1)
            unit = json.loads(unit).encode(errors="surrogateescape")
            broken += not check(layer, unit, lengths_of(layer, 0))
    return broken


if arguments[:1] == ["--known"]:
    missed = check_known()
else:
    numbers = [int(argument) for argument in arguments if argument.isdigit()]
    layers = [argument for argument in arguments if not argument.isdigit()]
    missed = search(layers or LAYERS, numbers[0] if numbers else 15)
print(f"{missed} beyond {COST_MAX} instructions a byte of a call, or {GROWTH_MAX} times a shorter text")
sys.exit(missed > 0)
