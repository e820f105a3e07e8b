"""python3 -m kavi: the command line kavi-tn; where that is not installed, what its --plain says, by the module."""

import argparse
import os
import sys
from typing import IO, Union

import kavi
from kavi._tool import find_tool


def filter_plain() -> None:
    parser = argparse.ArgumentParser(
        prog="python3 -m kavi", description="kavi-tn is not installed: without it there is the plain form of each line.",
        usage="python3 -m kavi --plain [--everyday] [--american-dates] [--lexicon FILE] [FILE...]\n"
              "       kavi-tn is not installed: without it there is this")
    parser.add_argument("--plain", action="store_true", required=True, help="words, with punctuation as written")
    parser.add_argument("--everyday", action="store_true", help="everyday English")
    parser.add_argument("--american-dates", action="store_true", help="3/1/2020 is March first")
    parser.add_argument("--lexicon", help="readings of your own")
    parser.add_argument("files", nargs="*", metavar="FILE", help="standard input without")
    wanted = parser.parse_args()
    reader = kavi.Reader(lexicon=wanted.lexicon, everyday=wanted.everyday, american_dates=wanted.american_dates)
    output = text_file(sys.stdout.fileno(), "w")
    for name in wanted.files or [sys.stdin.fileno()]:
        with text_file(name, "r") as lines:
            for line in lines:
                output.write(reader.normalize(line.rstrip("\n")) + "\n")
    output.flush()


def text_file(name: Union[str, int], mode: str) -> IO[str]:
    return open(name, mode, encoding="utf-8", errors="surrogateescape", newline="\n", closefd=isinstance(name, str))


def main() -> None:
    tool = find_tool()
    if tool is not None:
        os.execv(tool, ["kavi-tn", *sys.argv[1:]])
    try:
        filter_plain()
    except (OSError, ValueError) as error:
        sys.exit(f"python3 -m kavi: {error}")


if __name__ == "__main__":
    main()
