"""Texts that are still being written, in Python: what is handed over is what read() has for the whole."""

import os
import pathlib
import pickle
import random
import subprocess
import sys

import kavi
import pytest

PROJECT = pathlib.Path(os.environ.get("KAVI_PROJECT", pathlib.Path(__file__).parents[2]))
TEXT = ("Zürich, “Dr. Smith” paid <prosody=rate=\"2\">$5.50</prosody> on 3/1/2020, </poem>ok? 😀 It's 10:30!  Wait... what "
        "is 中文 <poem=a>this. ") * 30 + "Told at the end. So."


@pytest.mark.parametrize("by", ["sentence", "clause"])
@pytest.mark.parametrize("everyday", [False, True])
def test_all_utterances_are_what_is_read_at_once(by: str, everyday: bool) -> None:
    reader = kavi.Reader(everyday=everyday)
    whole = reader.read(TEXT, rules=True)
    cut = random.Random(3)
    places = sorted(cut.randrange(len(TEXT)) for _ in range(500))
    pieces = [TEXT[begin:end] for begin, end in zip([0, *places], [*places, len(TEXT)])]
    utterances = list(reader.stream(pieces, by=by, rules=True))
    clauses = [clause for utterance in utterances for clause in utterance.clauses]
    shown = ("source", "offset", "length", "normalized", "speakable", "plain", "words", "runs", "ends_sentence")
    for ours, theirs in zip(clauses, whole.sentences):
        assert [getattr(ours, name) for name in shown] == [getattr(theirs, name) for name in shown]
    assert len(clauses) == len(whole.sentences)
    findings = [finding._replace(sentence=0) for utterance in utterances for finding in utterance.findings]
    assert findings == [finding._replace(sentence=0) for finding in whole.findings]
    assert "".join(utterance.plain for utterance in utterances) == reader.normalize(TEXT)
    for utterance in utterances[:-1]:
        assert utterance.words
        assert by == "clause" or utterance.clauses[-1].ends_sentence
    assert pickle.loads(pickle.dumps(clauses[-1])).source == clauses[-1].source


def test_a_stream_by_hand_is_interrupted_and_ended() -> None:
    stream = kavi.Reader().open_stream(by="clause")
    assert [utterance.plain for utterance in stream.add("Ü. Two, thr")] == [". Two,"]
    stream.forget()
    (four,) = stream.add("Four") + stream.end()
    assert [clause.runs for clause in (*four.clauses, *next(kavi.Reader().stream(["Five"])).clauses)] == [(), ()]
    assert (four.plain, four.source, four.words[0].offset) == ("Four", "Four", 11)
    for call in (stream.end, lambda: stream.add("more")):
        with pytest.raises(ValueError, match="the text has ended"):
            call()
    stream.forget()
    assert stream.add("") == []
    with pytest.raises(ValueError, match="neither by sentence"):
        kavi.Reader().stream([], by="word")


def test_examples_say_what_they_should() -> None:
    def run(name: str) -> str:
        return subprocess.run([sys.executable, str(PROJECT / "examples" / name)], check=True, stdout=subprocess.PIPE,
                              text=True).stdout

    assert run("stream.py").splitlines() == [
        "It is on January third twenty twenty four.",
        "We meet at five thirty p m and it costs one point five million dollars!",
        "Then we go.",
        "[('Yes', 0, 3)]",
        "[('that', 5, 4), ('is', 10, 2), ('right', 13, 5)]",
        "['Sorry.']",
    ]
    assert run("stream_async.py").splitlines() == [
        "doctor Smith paid five dollars and fifty cents on the third of January twenty twenty, | 0",
        "ok? | 34",
        "It is ten thirty. | 38",
    ]
