"""What scripts/quality runs: TOOL FLITE [--check]

TOOL --rules only tells whether the same of the open cases and of those written with the rules are wrong as the document says.
"""

import collections
import math
import pathlib
import re
import subprocess
import sys

from spoken import is_said, read_cases

TOOL, FLITE = sys.argv[1:3]
ONLY_RULES = FLITE == "--rules"
CASES = pathlib.Path("tests/quality")
DOCUMENT = pathlib.Path("docs/quality.md")
READERS = {"engine": [TOOL, "--plain"], "everyday": [TOOL, "--plain", "--everyday"]}
if not ONLY_RULES:
    READERS["flite"] = [FLITE]
# The least share of the open cases that is right, in percent: what has been reached, so that no change loses it.
GOALS = {"real": 97, "traps": 95, "modern": 73, "pairs": 79, "classes": 83}
REGRESSION_GOAL = 0.98


def judged(cases):
    """For each reader, which cases it reads as a careful speaker would."""
    text = "\n".join(written for _, written, _ in cases) + "\n"
    judged_by = {}
    for reader, command in READERS.items():
        said = subprocess.run(command, input=text, capture_output=True, text=True, check=False, errors="replace").stdout
        assert said.count("\n") == len(cases), (reader, said.count("\n"))
        judged_by[reader] = [is_said(spoken, words) for (_, _, spoken), words in zip(cases, said.split("\n"))]
    return judged_by


def share(good):
    """Of the cases of a list, in percent, with the 95 % interval by Wilson."""
    n, p, z = len(good), sum(good) / len(good), 1.96
    middle, half = p + z * z / (2 * n), z * math.sqrt(p * (1 - p) / n + z * z / (4 * n * n))
    low, high = ((middle + sign * half) / (1 + z * z / n) for sign in (-1, 1))
    return f"{100 * p:.0f} ({100 * low:.0f}–{100 * high:.0f})"


def rows_of(name, part):
    """The rows of a table for one file of cases; those that everyday loses against the engine, and all that it misses."""
    cases = read_cases(CASES / f"{name}_{part}.tsv")
    good = judged(cases)
    groups = collections.defaultdict(list)
    for i, case in enumerate(cases):
        if name == "real":
            groups[f"{case[0]}, {part}"].append(i)
        groups[f"**all of {name}, {part}**"].append(i)
    rows = [f"| {group} | {len(of)} | " + " | ".join(share([good[reader][i] for i in of]) for reader in READERS) + " |"
            for group, of in sorted(groups.items(), key=lambda item: item[0].startswith("**"))]
    lost = [case[1] for i, case in enumerate(cases) if good["engine"][i] and not good["everyday"][i]]
    missed = [case[1] for i, case in enumerate(cases) if not good["everyday"][i]]
    return rows, lost, missed, 100 * sum(good["everyday"]) / len(cases)


def regression():
    """How many of the cases that were written with the rules are still right, and what is written about the others."""
    good = total = 0
    others = []
    for file in sorted([*CASES.glob("*.txt"), *CASES.glob("aside/*.txt")]):
        *wrong, summary = subprocess.run([TOOL, "--everyday", "--check", file], capture_output=True, text=True, check=False).stdout.splitlines()
        counts = re.match(r"(\d+) of (\d+)", summary)
        good, total = good + int(counts[1]), total + int(counts[2])
        others += [line.split(": ", 1)[1] for line in wrong if line.startswith("tests/")]
    return good, total, others


def in_document(text, mark, lines):
    return re.sub(rf"(<!-- {mark} -->\n).*?(<!-- end -->)", lambda m: m[1] + "\n".join([*lines, ""]) + m[2], text, count=1, flags=re.S)


def item(case):
    """A line of a list, in which no sign is one of Markdown or Doxygen."""
    return "- «" + re.sub(r"([@#\\])", r"\\\1", case) + "»"


def main():
    table = ["| text | cases | engine | everyday | flite |", "|---|---|---|---|---|"]
    all_lost, still, faults, sealed_lost = [], [], [], 0
    for name, goal in GOALS.items():
        for part in ("open",) if ONLY_RULES else ("open", "sealed"):
            if not (CASES / f"{name}_{part}.tsv").exists():
                continue
            rows, lost, missed, reached = rows_of(name, part)
            table += rows
            if part == "sealed":  # the cases stay unread
                sealed_lost += len(lost)
            else:
                all_lost += lost
                still += missed
                if reached < goal:
                    faults.append(f"{reached:.1f} % of {name}, {goal} % wanted")
    good, total, wrong = regression()
    if good < REGRESSION_GOAL * total:
        faults.append(f"{good} of {total} regression cases")
    old = DOCUMENT.read_text(encoding="utf-8")
    new = in_document(old, "regression", [f"{good} of {total} are right; not:", "", *map(item, wrong)])
    new = in_document(new, "wrong", list(map(item, still)))
    if ONLY_RULES:
        sys.exit(new != old)
    new = in_document(new, "table", table)
    new = in_document(new, "lost", [*map(item, all_lost), f"- {sealed_lost} of the sealed cases"])
    print("\n".join(table))
    print(f"{good} of {total} regression cases; {len(all_lost) + sealed_lost} cases worse than the engine alone; all in {DOCUMENT}")
    if sys.argv[3:] == ["--check"] and new != old:
        sys.exit(f"{DOCUMENT} tells something else: run scripts/quality")
    DOCUMENT.write_text(new, encoding="utf-8")
    sys.exit("; ".join(faults) or 0)


main()
