"""Texts with a seed: pieces of the tables of tests in any order, and all that the fuzz targets have learnt."""

import pathlib
import random
import re


def field(row):
    """The first field of a row of a table, as bytes."""
    text = re.match("«(.*?)»", row)[1]
    return re.sub(rb"\\x(..)", lambda found: bytes.fromhex(found[1].decode()), text.encode())


def make_texts(seed, count):
    rows = [row for name in ("pieces", "fuzz_words", "marks", "money", "dates", "tags", "pause_characters")
            for row in pathlib.Path(f"tests/tables/{name}.txt").read_text(encoding="utf-8").splitlines() if row.startswith("«")]
    pieces = [piece for piece in map(field, rows) if piece and b"\\" not in piece]
    pieces += [piece.encode() for piece in ("é", "— ", "😀 ", "& ", "<b>", "]]>", "<!--", "&amp;", "'", "\"", "\n", "\u2028", "word ", "Mr. ", "$1.5 million ")]
    source = random.Random(seed)
    made = [b"".join(source.choice(pieces) for _ in range(source.randrange(1, 40))) for _ in range(count)]
    learnt = [path.read_bytes() for path in sorted(pathlib.Path("fuzz/seeds").iterdir())]
    return [text.replace(b"\0", b" ") for text in made + learnt]
