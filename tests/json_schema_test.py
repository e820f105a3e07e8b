"""Every line that kavi-tn writes as JSON is as the schema says, and its places are those of the text.

Usage: json_schema_test.py PATH-OF-KAVI-TN SCHEMA FILE...
"""

import json
import subprocess
import sys

import jsonschema

tool, schema, *files = sys.argv[1:]
with open(schema, encoding="utf-8") as file:
    schema = json.load(file)
jsonschema.Draft202012Validator.check_schema(schema)
validator = jsonschema.Draft202012Validator(schema)
names = list(schema["properties"])


def lines(*arguments):
    command = [tool, "--format", "jsonl", "-0", *arguments, *files]
    out = subprocess.run(command, check=True, capture_output=True).stdout
    return [json.loads(line) for line in out.splitlines()]


as_it_is = lines("--fields", ",".join(names))
everything = as_it_is + lines("--fields", ",".join(names), "--everyday")
assert len(everything) > 100
for line in everything:
    validator.validate(line)
    if "sentence" in line:
        assert list(line) == names, list(line)

# Offsets are bytes of the text, for words as for sentences.
for line in everything:
    for part in line.get("words", []) + line.get("runs", []):
        at = part["offset"] - line["offset"]
        assert 0 <= at and at + part["length"] <= line["length"], (line, part)

assert "runs" not in lines()[0]
assert [list(line) for line in lines("--fields", "plain")] == \
    [["plain"]] * sum("sentence" in line for line in as_it_is)
print(len(everything), "lines are valid")
