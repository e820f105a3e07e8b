"""Prepares the metadata of a voice: lines `id|text` in, `id|text|spoken` out, findings to a report.

Usage: voice_data.py METADATA SPOKEN REPORT
"""

import sys
import time

import kavi


def bar(done: int, total: int, begin: float) -> None:
    if sys.stderr.isatty() and total:
        rate = done / max(time.monotonic() - begin, 1e-9)
        print(f"\r[{'#' * (40 * done // total):40}] {done}/{total}, {rate:,.0f} lines/s", end="", file=sys.stderr)


def main(metadata: str, spoken: str, report: str) -> None:
    with open(metadata, encoding="utf-8") as file:
        total = sum(1 for _ in file)
    reader = kavi.Reader(everyday=True)
    begin = time.monotonic()
    with open(metadata, encoding="utf-8") as file, open(spoken, "w", encoding="utf-8") as out, \
            open(report, "w", encoding="utf-8") as findings:
        for number, line in enumerate(file, 1):
            name, text = line.rstrip("\n").split("|", 1)
            result = reader.read(text)
            words = "".join(sentence.plain for sentence in result.sentences)
            print(name, text, words, sep="|", file=out)
            for finding in result.findings:
                print(f"{metadata}:{number}:{finding.offset}: {finding.code.value}: {finding.message}", file=findings)
            if number % 10000 == 0 or number == total:
                bar(number, total, begin)


if __name__ == "__main__":
    main(*sys.argv[1:])
