"""Every command of the documents does what they say.

Each "$ command" of a console block in README.md and docs/*.md prints what stands under it; each example
of the man page and of --help runs. Whatever lists the classes of everyday English, or the fields of JSON
Lines, lists all of them in their order.

Usage: documents_test.py PATH-OF-KAVI-TN PROJECT
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile

tool, project = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
environment = {**os.environ, "PATH": f"{tool.parent}:{os.environ['PATH']}"}


def run(command, folder):
    return subprocess.run(["bash", "-c", command], cwd=folder, env=environment, capture_output=True,
                          text=True, check=True).stdout


commands = examples = 0
with tempfile.TemporaryDirectory() as folder:
    for name in ("notes.txt", "corpus.txt", "page.txt"):
        (pathlib.Path(folder) / name).write_text("Dr. Smith paid $5.50.\n")
    for document in [project / "README.md", *sorted((project / "docs").glob("*.md"))]:
        for block in re.findall(r"^```console\n(.*?)^```", document.read_text(), re.M | re.S):
            for part in re.split(r"^\$ ", block, flags=re.M)[1:]:
                command, expected = part.split("\n", 1)
                actual = run(command, folder)
                assert actual == expected, f"{document}: {command}\n{actual}\ninstead of\n{expected}"
                commands += 1
    page = (project / "tools/kavi-tn/kavi-tn.1").read_text()
    for example in re.findall(r"^\.Dl (kavi-tn .*)$", page, re.M) + \
            re.findall(r"^  (kavi-tn .*)$", run("kavi-tn --help", folder), re.M):
        run(example, folder)
        examples += 1


def lists(path, names):
    listed = re.findall(rf"(?<![a-z])(?:{'|'.join(names)})(?![a-z])", path.read_text().lower())
    assert " ".join(names) in " ".join(listed), f"{path} does not list {names}"


header = (project / "tts-text/tts-everyday/inc/tts_everyday.h").read_text()
classes = re.findall(r"^    (\w+), +// ", header, re.M)
fields = re.findall(r"{Field::\w+, \"(\w+)\"}", (project / "tools/kavi-tn/names.cpp").read_text())
for path in [*(project / "tools/kavi-tn/completions").iterdir(), *map(project.joinpath, (
        "tools/kavi-tn/command_line.cpp", "tools/kavi-tn/kavi-tn.1"))]:
    lists(path, classes)
    lists(path, fields)
for name in ("tts-text/tts-c/inc/kavi.h", "web/kavi.js", "python/kavi/_types.py", "docs/kavi-tn.schema.json",
             "docs/everyday.md"):
    lists(project / name, classes)
assert commands >= 3 and examples >= 8 and len(classes) >= 11 and len(fields) >= 14, (commands, examples, fields)
print(commands, "commands and", examples, "examples do what is said;", len(classes), "classes and", len(fields),
      "fields are listed")
