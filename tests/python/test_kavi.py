"""The Python package, installed from its wheel: the same answers as the tool, in Python's own terms."""

import concurrent.futures
import doctest
import itertools
import json
import os
import pathlib
import pickle
import re
import shutil
import signal
import subprocess
import sys
import threading
from typing import Any

import kavi
import pytest
from kavi import _kavi

PROJECT = pathlib.Path(os.environ.get("KAVI_PROJECT", pathlib.Path(__file__).parents[2]))
TEXT = "“Dr. Smith” paid <prosody=rate=\"2\">$5.50<breaktime=200></prosody> on 3/1/2020, </poem>ok? ÿ It's 10:30!"

needs_tool = pytest.mark.skipif("KAVI_TN" not in os.environ and shutil.which("kavi-tn") is None,
                                reason="kavi-tn is not installed")


def tool(*arguments: str, text: bytes = b"") -> bytes:
    run = subprocess.run([sys.executable, "-m", "kavi", *arguments], input=text, stdout=subprocess.PIPE, check=True,
                         stderr=subprocess.DEVNULL)
    return run.stdout


def test_examples_in_documentation() -> None:
    assert doctest.testmod(kavi) == (0, 2)


@needs_tool
def test_the_program_is_the_tool_or_its_plain_form(tmp_path: pathlib.Path, monkeypatch: pytest.MonkeyPatch) -> None:
    golden = PROJECT / "tests/golden"
    inputs = [str(golden / "input.txt"), str(golden / "second <&\">.txt")]
    assert tool("--version").split()[-1] == str(kavi.readings_version).encode()
    assert tool("--words", *inputs) == (golden / "words.txt").read_bytes()
    (tmp_path / "lexicon").write_text("kavi\tkahvee\n")
    commands = [("--plain", *inputs), ("--plain", "--everyday", "--american-dates", "--lexicon", str(tmp_path / "lexicon"))]
    text = "kavi \ud800 won't \0 \u201c3/4/2020\u201d\r\n\nkavi".encode(errors="surrogatepass") + b" \xff 5"
    by_tool = [tool(*command, text=text) for command in commands]
    monkeypatch.delenv("KAVI_TN", raising=False)
    monkeypatch.setenv("PATH", "")
    assert [tool(*command, text=text) for command in commands] == by_tool
    for wrong, said in ((["--words"], b"kavi-tn is not installed"), (["--plain", "none"], b"\npython3 -m kavi: [Errno 2]"),
                        (["--plain", *inputs], b"\npython3 -m kavi: [Errno 28]")):
        with open("/dev/full", "wb") as full:
            run = subprocess.run([sys.executable, "-m", "kavi", *wrong], stdout=full, stderr=subprocess.PIPE)
        assert run.returncode != 0 and said in b"\n" + run.stderr


def test_enumerations_are_the_engine_s() -> None:
    pauses, marks, findings, classes = _kavi.names()
    assert [pause.name for pause in kavi.Pause] == [
        name.upper().replace(", ", " ").replace(" ", "_") for name in pauses]
    assert [mark.name for mark in kavi.Mark] == [name.upper() for name in marks]
    assert [*kavi.Pause, *kavi.Mark] == [*range(-2, len(pauses) - 2), *range(len(marks))]
    assert [code.value for code in kavi.FindingCode] == findings
    assert [kavi.Everyday[name.upper()] for name in classes] == [1 << i for i in range(len(classes))]
    assert kavi.Reader(everyday=classes) == kavi.Reader(everyday=kavi.Everyday.ALL) == kavi.Reader(everyday=True)


def words_by_tool(line: str) -> list:
    """Sentences of words as the tool's JSON has them, offsets in code points."""
    data = line.encode()
    sentences = []
    for row in tool("--format", "jsonl", "--fields", "offset,length,speakable,plain,words", "-0", text=data).splitlines():
        sentence = json.loads(row)

        def points(thing: dict) -> tuple:
            begin = len(data[:thing["offset"]].decode(errors="ignore"))
            return begin, len(data[:thing["offset"] + thing["length"]].decode(errors="ignore")) - begin

        words = [(word["word"], *points(word), word["pause"], word.get("marks", []), word.get("breaktime", ""),
                  {name: word[name] for name in word if name in ("emphasis", "pitch", "rate", "volume", "poem")})
                 for word in sentence["words"] if word["word"] is not None]
        sentences.append((*points(sentence), sentence["speakable"], sentence["plain"], words))
    return sentences


def words_by_package(text: str) -> list:
    pauses, marks, *_ = _kavi.names()
    return [(s.offset, s.length, s.speakable, s.plain,
             [(w.text, w.offset, w.length, pauses[w.pause + 2], [marks[m] for m in w.marks], w.breaktime,
               {name: w.attributes[name] for name in w.attributes if name not in ("spectrum", "quill_effect")})
              for w in s.words]) for s in kavi.read(text).sentences]


SEEDS = " ".join(path.read_bytes().decode(errors="ignore").replace("\0", "")
                 for path in (PROJECT / "fuzz/seeds").iterdir())


@needs_tool
@pytest.mark.parametrize("text", [TEXT, "", "Zürich, «5.50» – ½ 😀 1999!", "a. " * 50, SEEDS],
                         ids=["markup", "empty", "outside ASCII", "sentences", "fuzz seeds"])
def test_reads_as_the_tool_does(text: str) -> None:
    assert words_by_package(text) == words_by_tool(text)


def listed(result: kavi.Result, text: str) -> str:
    """What was read, as in tests/golden/answers.txt."""
    pauses, marks, *_ = _kavi.names()
    ends = list(itertools.accumulate((len(c.encode()) for c in text), initial=0))

    def span(thing: Any) -> str:
        return f"{ends[thing.offset]}+{ends[thing.offset + thing.length] - ends[thing.offset]}"

    def word(kind: str, w: kavi.Word) -> str:
        set_ = [marks[m] for m in w.marks] + [f"breaktime={w.breaktime}"] * bool(w.breaktime)
        set_ += [f"{name}={value}" for name, value in w.attributes.items()]
        return " ".join([f"{kind} {w.text}|{w.after}| {span(w)} {pauses[w.pause + 2]}|", *set_])

    lines, findings = [], list(result.findings)
    for number, s in enumerate((*result.sentences, None)):
        while findings and findings[0].sentence == number:
            found = findings.pop(0)
            lines.append(f"finding {found.code.value} {span(found)} {number} {found.message}")
        if s is not None:
            lines += [f"sentence {span(s)}|{s.normalized}|{s.speakable}|{s.plain}|{s.before}|", word("head", s.head)]
            lines += [word("word", w) for w in s.words]
            lines += [f"run {span(run)} {run.rule}|{run.reading}|" for run in s.runs]
    return "".join(line + "\n" for line in lines)


def test_answers_are_those_of_c() -> None:
    golden = (PROJECT / "tests/golden/answers.txt").read_text()
    answers = ""
    for line in re.findall("^>.*", golden, re.M):
        text = re.sub(r"\\{(\d+):(.*?)}", lambda m: int(m[1]) * m[2], line.lstrip(">")[1:])
        answers += line + "\n" + listed(kavi.Reader(everyday=line[1] == ">").read(text, rules=len(text) < 1000), text)
    assert answers == golden


def test_sentences_have_their_source_and_words_members() -> None:
    result = kavi.read(TEXT)
    assert "".join(sentence.source for sentence in result.sentences) == TEXT
    assert result.complete
    last = result.sentences[0].words[-1]
    assert last.pause is kavi.Pause.INTONATION_PHRASE_FORCED and last.marks == (kavi.Mark.DOU,)
    assert result.findings[0].code is kavi.FindingCode.NOT_SPOKEN


def test_runs_are_told_on_request() -> None:
    assert kavi.read("5 cats").sentences[0].runs == ()
    assert kavi.read("5 cats", rules=True).sentences[0].runs[0] == (0, 1, "cardinal", " five  ")


def test_lone_surrogates_and_nul_lose_no_word() -> None:
    assert kavi.normalize("a \ud800 5 \0 b") == "a five b"
    sentence = kavi.read("a \ud800 5 \0 b").sentences[0]
    assert [word.offset for word in sentence.words] == [0, 4, 8]
    assert sentence.normalized == "a \ud800 5   b"


def test_a_character_that_was_cut_is_kept_by_its_bytes() -> None:
    result = kavi.read("a<breaktime=éééééééééé>")
    assert result.sentences[0].words[0].breaktime == 9 * "é" + "\udcc3"
    assert pickle.loads(pickle.dumps(result)) == result


def test_what_is_no_str_is_refused() -> None:
    with pytest.raises(TypeError):
        kavi.normalize(5)  # type: ignore[arg-type]
    with pytest.raises(TypeError):
        list(kavi.normalize_many(["a", 5]))  # type: ignore[list-item]
    with pytest.raises(TypeError, match="one text"):
        kavi.normalize_many("5 cats")
    with pytest.raises(ValueError, match="jobs"):
        kavi.normalize_many([], jobs=0)


@pytest.mark.parametrize("made", [_kavi.Reader, kavi.Result, kavi.Sentence])
def test_what_readers_make_is_made_by_nobody_else(made: type) -> None:
    for make in (made, lambda: made.__new__(made)):
        with pytest.raises(TypeError, match="made by a reader alone"):
            make()


def test_results_and_readers_are_compared_printed_and_pickled(tmp_path: pathlib.Path) -> None:
    lexicon = tmp_path / "mine.txt"
    lexicon.write_text("kavi\tkahvee\n")
    reader = kavi.Reader(lexicon=lexicon, everyday="units")
    lexicon.unlink()
    copy = pickle.loads(pickle.dumps(reader))
    assert (copy, hash(copy)) == (reader, hash(reader)) and copy != kavi.Reader()
    assert copy.normalize("kavi 5 km") == "kahvee five kilometres"
    assert repr(copy) == f"Reader(capacity=0, lexicon='{lexicon}', everyday={kavi.Everyday.UNITS!r}, american_dates=False)"
    result = reader.read(TEXT + " \ud800", rules=True)
    again = pickle.loads(pickle.dumps(result))
    assert again == result and again.sentences[1] == result.sentences[1] != result.sentences[0]
    assert again != reader.read(TEXT, rules=True) and again != 5
    for one, other in zip((again, *again.sentences), (result, *result.sentences)):
        assert repr(one) == repr(other)
    assert "Word(text='doctor'" in repr(result) and "lexicon=None" in repr(kavi.Reader())


def test_signals_are_answered_inside_a_long_text() -> None:
    calls = []

    def on_alarm(*_: object) -> None:
        calls.append(1)
        if len(calls) == 3:  # signals that wait for the end of a call come as one
            raise KeyboardInterrupt
        signal.setitimer(signal.ITIMER_REAL, 0.01)

    before = signal.signal(signal.SIGALRM, on_alarm)
    try:
        for read in (kavi.normalize, kavi.read):
            calls.clear()
            signal.setitimer(signal.ITIMER_REAL, 0.01)
            with pytest.raises(KeyboardInterrupt):
                read("It is 10:30. " * 600000)
    finally:
        signal.setitimer(signal.ITIMER_REAL, 0)
        signal.signal(signal.SIGALRM, before)
    assert kavi.normalize("5") == "five"


def test_capacity(tmp_path: pathlib.Path) -> None:
    small = kavi.Reader(capacity=1)
    with pytest.raises(MemoryError):
        small.normalize("a b")
    with pytest.raises(MemoryError):
        list(small.normalize_many(["a", ""]))
    assert not small.read("a b").complete


def test_lexicon_and_everyday_english(tmp_path: pathlib.Path) -> None:
    lexicon = tmp_path / "mine.txt"
    lexicon.write_text("kavi\tkahvee\n")
    assert kavi.Reader(lexicon=lexicon).normalize("kavi won't") == kavi.normalize("kahvee won't")
    assert kavi.Reader(lexicon=lexicon, everyday=True).normalize("kavi won't") == "kahvee will not"
    for units in (kavi.Everyday.UNITS, "units", ["units", kavi.Everyday.NONE]):
        assert kavi.Reader(everyday=units).normalize("5 km won't") == kavi.normalize("five kilometres won't")
    for unknown in ("all", ["units", "unit"], 1 << 12, -1):
        with pytest.raises(ValueError, match="everyday"):
            kavi.Reader(everyday=unknown)
    dates = kavi.Reader(everyday=kavi.Everyday.YEARS, american_dates=True)
    assert dates.normalize("3/4/2020") == "March fourth twenty twenty"
    lexicon.write_text("ok\tokay\nbad\n")
    with pytest.raises(ValueError, match=f"^{lexicon}:2:"):
        kavi.Reader(lexicon=lexicon)
    with pytest.raises(OSError):
        kavi.Reader(lexicon=tmp_path / "none")


@pytest.mark.parametrize("jobs", [1, 3])
def test_many_texts_come_in_order(jobs: int) -> None:
    texts = [f"{n} cats, {n * 7}" for n in range(5000)]
    assert list(kavi.normalize_many(iter(texts), jobs)) == [kavi.normalize(text) for text in texts]
    assert list(kavi.read_many(iter(texts), jobs=jobs)) == [kavi.read(text) for text in texts]


def test_many_texts_are_taken_as_they_are_needed() -> None:
    taken = 0

    def texts():  # type: ignore[no-untyped-def]
        nonlocal taken
        while True:
            taken += 1
            yield "a 5"

    many = kavi.normalize_many(texts(), jobs=2)
    assert [next(many) for _ in range(3)] == ["a five"] * 3
    assert taken < 10000


def test_one_reader_is_for_one_thread() -> None:
    reader = kavi.Reader()
    long = "It is 10:30. " * 200000
    entered, failed = threading.Event(), []

    def work() -> None:
        entered.set()
        reader.normalize(long)

    thread = threading.Thread(target=work)
    thread.start()
    entered.wait()
    while thread.is_alive() and not failed:
        try:
            reader.normalize("a")
        except RuntimeError as error:
            failed.append(str(error))
    thread.join()
    assert failed == ["another thread reads with this reader"]
    assert reader.normalize("a 5") == "a five"


def test_the_functions_have_a_reader_for_each_thread() -> None:
    with concurrent.futures.ThreadPoolExecutor(2) as threads:
        assert len(set(threads.map(kavi.normalize, ["It is 10:30. " * 20000] * 8))) == 1


def test_lines_of_a_file(tmp_path: pathlib.Path) -> None:
    path = tmp_path / "lines"
    path.write_bytes(b"a 5\r\nb \xff 6\n\nc")
    lines = list(kavi.read_file(path, rules=True))
    assert lines[0].result.sentences[0].runs
    assert [(line.number, [word.text for s in line.result.sentences for word in s.words]) for line in lines] == [
        (1, ["a", "five"]), (2, ["b", "six"]), (3, []), (4, ["c"])]
    assert [line.text for line in lines] == ["a 5\r", "b \udcff 6", "", "c"]
    assert next(kavi.read_file(path)).result == kavi.read("a 5\r")


@pytest.mark.parametrize("page", ["README.md", "docs/python.md"])
def test_pages_about_python(page: str) -> None:
    failed, tried = doctest.testfile(str(PROJECT / page), module_relative=False)
    assert (failed, tried > 1) == (0, True)


def test_voice_data(tmp_path: pathlib.Path) -> None:
    (tmp_path / "metadata").write_text("a1|It's 5 km, ok\na2|x ☃ y|z\n")
    subprocess.run([sys.executable, PROJECT / "examples/voice_data.py", "metadata", "spoken", "report"], cwd=tmp_path,
                   check=True)
    assert (tmp_path / "spoken").read_text() == "a1|It's 5 km, ok|It is five kilometres, ok\na2|x ☃ y|z|x y z\n"
    assert (tmp_path / "report").read_text() == (
        "metadata:2:2: not-spoken: bytes outside ASCII are not spoken\n"
        "metadata:2:5: mark-not-spoken: no word is said for this mark; it is told once in a text\n")
