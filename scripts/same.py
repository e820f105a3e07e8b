"""What scripts/same does."""

import json
import pathlib
import subprocess
import sys
import tempfile

from made_texts import make_texts

before, now, count = sys.argv[1], sys.argv[2], int(sys.argv[3])
FIELDS = ",".join(json.loads(pathlib.Path("docs/kavi-tn.schema.json").read_text(encoding="utf-8"))["properties"])
FORMATS = [["--sentences"], ["--speakable"], ["--plain"], ["--words"], ["--explain"], ["--format", "html"],
           ["--format", "ssml", "--marks"], ["--format", "jsonl", "--fields", FIELDS]]
BATCH = 10000  # texts of one run


def said(tool, options, texts):
    """What is written to the output, to standard error and to the file of findings."""
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder, "texts")
        file.write_bytes(b"".join(text + b"\0" for text in texts))
        run = subprocess.run([tool, "-0", "--findings", "findings", *options, "texts"], cwd=folder, check=False, capture_output=True)
        return run.returncode, run.stdout, run.stderr, pathlib.Path(folder, "findings").read_bytes()


def first_that_differs(options, texts):
    """By halves."""
    while len(texts) > 1:
        half = texts[:len(texts) // 2]
        texts = half if said(before, options, half) != said(now, options, half) else texts[len(texts) // 2:]
    return texts[0]


made = make_texts(1, count)
before, now = (str(pathlib.Path(tool).resolve()) for tool in (before, now))
different = 0
for everyday in ([], ["--everyday"]):
    for options in ([*form, *everyday] for form in FORMATS):
        for batch in (made[i:i + BATCH] for i in range(0, len(made), BATCH)):
            if said(before, options, batch) != said(now, options, batch):
                text = first_that_differs(options, batch)
                print(f"{' '.join(options[:3])}: {text}\n  before: {said(before, options, [text])}\n  now:    {said(now, options, [text])}")
                different += 1
                break
print(f"{len(made)} texts in {2 * len(FORMATS)} ways: {different} ways differ")
sys.exit(different > 0)
