"""What scripts/read_back does: texts with a seed, and what three formats say of them by parsers of others."""

import html.parser
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

import jsonschema

from made_texts import make_texts

tool, seed, count = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
SSML = "{http://www.w3.org/2001/10/synthesis}"


def as_text(bytes_):
    """What is no UTF-8 is U+FFFD, once or more."""
    text = bytes_ if isinstance(bytes_, str) else bytes_.decode(errors="replace")
    return re.sub("\ufffd+", "\ufffd", text)


def run(*arguments):
    return subprocess.run([tool, "-0", *arguments], check=True, capture_output=True).stdout


class Page(html.parser.HTMLParser):
    """The words of a page: the first text of each "i" element of an article."""

    def __init__(self):
        super().__init__()
        self.in_article, self.begins_word, self.words = False, False, []

    def handle_starttag(self, tag, attrs):
        self.in_article = self.in_article or tag == "article"
        self.begins_word = self.in_article and tag == "i"

    def handle_endtag(self, tag):
        self.in_article = self.in_article and tag != "article"
        self.begins_word = False

    def handle_data(self, data):
        if self.begins_word:
            self.words.append(data)
        self.begins_word = False


def words_of_json(texts, lines):
    """The words in order; fails where a line does not say what the text has."""
    schema = json.loads(pathlib.Path("docs/kavi-tn.schema.json").read_text(encoding="utf-8"))
    jsonschema.Draft202012Validator.check_schema(schema)
    validator = jsonschema.Draft202012Validator(schema)
    words, places = [], []
    end_of = {}
    for line in map(json.loads, lines.splitlines()):
        validator.validate(line)
        text = texts[line["line"] - 1]
        if "sentence" not in line:
            continue
        assert list(line) == list(schema["properties"]), list(line)
        begin, end = line["offset"], line["offset"] + line["length"]
        assert begin == end_of.get(line["line"], 0), ("a sentence begins where the last one ended", line)
        end_of[line["line"]] = end
        assert as_text(text[begin:end]) == as_text(line["source"]), ("the source is these bytes", line)
        at = begin
        for word in line["words"]:
            assert at <= word["offset"] and word["offset"] + word["length"] <= end, ("a word of its sentence, in order", word, line)
            at = word["offset"]
            if word["word"] is not None:
                words.append(word["word"])
                places.append((word["offset"], word["length"]))
        at = begin
        for run_ in line["runs"]:
            assert at <= run_["offset"] and run_["offset"] + run_["length"] <= end, ("a run of its sentence, in order", run_, line)
            at = run_["offset"]
        for reading in line["words"]:
            spoken = reading["word"]
            assert spoken is None or re.search(rf"(?<![A-Za-z]){re.escape(spoken)}(?![A-Za-z])", line["speakable"]), ("a word that is spoken", reading, line)
    return words, places


def words_of_ssml(document):
    """The words in order, each after its mark, and the marks."""
    root = xml.etree.ElementTree.fromstring(document)
    assert root.tag == SSML + "speak", root.tag
    words, places = [], []
    for sentence in root:
        assert sentence.tag == SSML + "s", sentence.tag
        for element in sentence.iter():
            if element.tag == SSML + "mark":
                places.append(tuple(int(number) for number in element.get("name").split("-")))
                words.append(re.sub("[^A-Za-z]", "", element.tail or ""))
    return words, places


def main():
    texts = make_texts(seed, count)
    total = 0
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder) / "texts"
        file.write_bytes(b"".join(text + b"\0" for text in texts))
        schema = json.loads(pathlib.Path("docs/kavi-tn.schema.json").read_text(encoding="utf-8"))
        for options in ([], ["--everyday"]):
            fields = ",".join(schema["properties"])
            words, places = words_of_json(texts, run("--format", "jsonl", "--fields", fields, *options, file))
            letters = [re.sub("[^A-Za-z]", "", word) for word in words]
            ssml_words, marks = words_of_ssml(run("--format", "ssml", "--marks", *options, file))
            assert marks == places, "SSML has the same places"
            assert ssml_words == letters, next(pair for pair in zip(letters, ssml_words) if pair[0] != pair[1])
            page = Page()
            page.feed(run("--format", "html", *options, file).decode())
            assert page.words == words, next((pair for pair in zip(words, page.words) if pair[0] != pair[1]), (len(words), len(page.words)))
            total += len(words)
        assert "runs" not in json.loads(run("--format", "jsonl", file).splitlines()[0])
        plain = run("--format", "jsonl", "--fields", "plain", file).splitlines()
        assert all(list(json.loads(line)) == ["plain"] for line in plain) and plain
    print(f"{len(texts)} texts, {count} of them of seed {seed}: {total} words come back from JSON, SSML and pages")


main()
