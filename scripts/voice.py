"""Compares what was read with what was heard, for scripts/voice, and writes it into docs/voice.md."""

import collections
import difflib
import json
import pathlib
import re
import sys

out = pathlib.Path(sys.argv[1])
document = pathlib.Path("docs/voice.md")
read = collections.defaultdict(list)
for line in (out / "read").read_text().splitlines():
    sentence = json.loads(line)
    read[sentence["line"]] += [word["word"] for word in sentence["words"] if word["word"]]
heard = (out / "heard").read_text().splitlines()
same, others = 0, collections.Counter()
for number, said in enumerate(heard, 1):
    words, said = read[number], said.split()
    same += words == said
    if words == said:
        continue
    for kind, a, b, c, d in difflib.SequenceMatcher(None, words, said, autojunk=False).get_opcodes():
        if kind != "equal":
            before = words[a - 1:a] if kind == "delete" else []
            others[" ".join(before + words[a:b]), " ".join(before + said[c:d])] += 1
total = len(heard)
rows = [f"{same} of {total} sentences, {100 * same / total:.1f} %, are heard word for word.", "",
        "| read | reported | times |", "|---|---|---|"]
rows += [f"| {a} | {b} | {n} |" for (a, b), n in others.most_common(40)]
new = re.sub(r"(<!-- table -->\n).*?(<!-- end -->)", lambda m: m[1] + "\n".join(rows) + "\n" + m[2], document.read_text(),
             count=1, flags=re.S)
document.write_text(new)
print(rows[0])
