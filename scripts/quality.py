"""What scripts/quality runs: TOOL FLITE [--check]"""

import pathlib
import re
import subprocess
import sys

TOOL, FLITE = sys.argv[1:3]
CASES = pathlib.Path("tests/quality")
DOCUMENT = pathlib.Path("docs/quality.md")
ALL_GOAL, CLASS_GOAL = 0.95, 0.85


def checked(arguments, file):
    """How many cases are as expected, of how many, and what is written about the others."""
    run = subprocess.run([TOOL, *arguments, "--check", file], capture_output=True, text=True)
    *others, summary = run.stdout.splitlines()
    good, total = map(int, re.match(r"(\d+) of (\d+)", summary).groups())
    return good, total, others


def by_flite(file):
    """The same for flite; an apostrophe in a word is none."""
    cases = [line.split("\t") for line in file.read_text().splitlines() if line and line[0] != "#"]
    texts = "\n".join(case[0] for case in cases) + "\n"
    said = subprocess.run([FLITE], input=texts, capture_output=True, text=True, check=True,
                          errors="replace").stdout
    good = 0
    for case, words in zip(cases, said.splitlines()):
        words = re.sub("[^a-z ]", "", words.lower())
        good += any(words.split() == re.sub("[^a-z ]", "", other).split() for other in case[1:])
    return good


def share(good, total):
    return f"{100 * good / total:.0f} %"


def main():
    rows, missed, wrong, sums = [], [], [], [0] * 6
    for file in sorted(CASES.glob("*.txt")):
        aside = CASES / "aside" / file.name
        off, total, _ = checked([], file)
        on, _, others = checked(["--everyday"], file)
        aside_on, aside_total, aside_others = checked(["--everyday"], aside)
        flite = by_flite(file)
        wrong += [line.split(": ", 1)[1] for line in others + aside_others if line.startswith("tests/")]
        rows.append(f"| {file.stem} | {total} | {share(off, total)} | {share(on, total)} | {share(flite, total)} "
                    f"| {share(aside_on, aside_total)} of {aside_total} |")
        for i, n in enumerate((total, off, on, flite, aside_total, aside_on)):
            sums[i] += n
        if on < CLASS_GOAL * total and file.stem != "mixed":
            missed.append(file.stem)
    total, off, on, flite, aside_total, aside_on = sums
    rows.append(f"| all | {total} | {share(off, total)} | {share(on, total)} | {share(flite, total)} "
                f"| {share(aside_on, aside_total)} of {aside_total} |")
    if on < ALL_GOAL * total:
        missed.append("all")
    text = DOCUMENT.read_text()
    table = "| class | cases | off | on | flite | kept aside |\n|---|---|---|---|---|---|\n" + "\n".join(rows)
    still = "\n".join(f"- «{line}»" for line in wrong)
    new = re.sub(r"(<!-- table -->\n).*?(<!-- end -->)", lambda m: m[1] + table + "\n" + m[2], text, count=1, flags=re.S)
    new = re.sub(r"(<!-- wrong -->\n).*?(<!-- end -->)", lambda m: m[1] + still + "\n" + m[2], new, count=1, flags=re.S)
    print(table)
    print(f"{len(wrong)} are still wrong, in {DOCUMENT}")
    if sys.argv[3:] == ["--check"] and new != text:
        sys.exit(f"{DOCUMENT} tells something else: run scripts/quality")
    DOCUMENT.write_text(new)
    sys.exit(f"Goals missed: {', '.join(missed)}" if missed else 0)


main()
