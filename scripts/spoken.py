"""What a careful speaker says, as the cases of tests/quality have it, and whether words are that."""

import pathlib
import re


# A contraction is as good as its words. Of «'s» and «'d» the cases do not tell which words: both count.
WHOLE = [(r"\bcan't\b", "cannot"), (r"\bcan not\b", "cannot"), (r"\bwon't\b", "will not"), (r"\bshan't\b", "shall not"),
         (r"\bain't\b", "aint"), (r"n't\b", " not"), (r"'ll\b", " will"), (r"'re\b", " are"), (r"'ve\b", " have"), (r"\bi'm\b", "i am"),
         (r"(?<!\w)'twas\b", "it was"), (r"\blet's\b", "let us"),
         (r"\b(it|that|he|she|what|who|there|here|how|where|when)('s| is| has)\b", r"\1 s"), (r"\b(i|you|he|she|it|we|they|who|that|there)('d| would| had)\b", r"\1 d")]


def folded(text):
    """Words alone: punctuation, hyphens, capitals and how a contraction is said are not compared."""
    text = re.sub("[‘’]", "'", text.lower())
    for contraction, words in WHOLE:
        text = re.sub(contraction, words, text)
    return " ".join(re.sub(r"[^a-z0-9&+#@%$ ]", " ", text.replace("'", "")).split())


def pattern(spoken):
    """Of «two {and|} a half», what matches each way of saying it; whole sentences are parted by « | »."""
    ways = []
    for sentence in re.split(r" \| (?![^{]*\})", spoken):
        parts = re.split(r"(\{[^}]*\})", sentence)
        ways.append("".join(
            "(?:" + "|".join(re.escape(" " + folded(way)).rstrip("\\ ") if folded(way) else "" for way in part[1:-1].split("|")) + ")"
            if part.startswith("{") else "".join(re.escape(" " + word) for word in folded(part).split()) for part in parts))
    return re.compile("|".join(ways))


def is_said(spoken, words):
    return pattern(spoken).fullmatch("".join(" " + word for word in folded(words).split())) is not None


def read_cases(path):
    """The rows of a file: kind, what is written, what is said."""
    lines = pathlib.Path(path).read_text(encoding="utf-8").splitlines()
    return [tuple(line.split("\t")) for line in lines if line and not line.startswith("#")]
