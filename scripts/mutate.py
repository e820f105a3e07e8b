"""What scripts/mutate runs."""

import concurrent.futures
import contextlib
import os
import pathlib
import queue
import re
import shutil
import signal
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
FOLDERS = ["tts-common/src", "tts-text/tts-tn/src", "tts-text/tts-host/src", "tools/kavi-tn"]
WORKERS = os.cpu_count() or 1
SECONDS = 60  # a fault that makes the tests run longer is noticed

# The programs that must notice a fault, the quickest first. They are built with -O1: the compiler takes
# a little longer, the tests a quarter of their time.
ENGINE_TESTS = ["build/tests/kavi_refusal_tests --gtest_fail_fast",
                "build/tests/kavi_tests --gtest_fail_fast --gtest_filter=-Host*",
                "build/tests/kavi_tests --gtest_fail_fast --gtest_filter=Host*"]
TOOL_TESTS = ["build/tests/kavi_tool_tests --gtest_fail_fast",
              "tests/kavi_tn_test.sh build/tools/kavi-tn/kavi-tn tools/kavi-tn/sample.txt"]

# What is looked for in a line of code, and what is put in its place.
FAULTS = [(re.compile(pattern), replacement) for pattern, replacement in [
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r"(?<=[ (])!(?=[a-z_(])", ""),
    (r" \+ 1\b", ""), (r" - 1\b", ""), (r" \+ (?=[a-z])", " - "), (r" - (?=[a-z])", " + "),
    (r" \+= ", " -= "), (r"(?<![\w+])\+\+", "--"),
    (r"\breturn true;", "return false;"), (r"\breturn false;", "return true;"),
    (r"\breturn -1;", "return 0;"), (r"\breturn 0;", "return -1;"),
    (r"(?<=, )(\d)(?=\))", lambda found: str(int(found.group(1)) + 1)),   # a section later
    (r"(?<=, )([1-9])(?=\))", lambda found: str(int(found.group(1)) - 1)),  # or earlier
    (r"(?<== )(\d+)(?=;)", lambda found: str(int(found.group(1)) + 1)),
    (r"->m_pnext\b", ""), (r"->m_pprevious\b", "->m_pnext"),  # the wrong neighbour
    (r"(?<=\w\[)([1-9])(?=\])|(?<= \+ )([2-9])\b", lambda found: str(int(found.group()) + 1)),  # a token later
    (r"^ +[\w.>-]+\.(append|take|append_whole|cut|clear|pass|catch_up)\(.*\);$", ""),
    (r"^ +continue;$", ""), (r"^ +break;$", ""),
    # A release, a re-initialisation, a field or an escape left out.
    (r"^ +(static_cast<void>\()?[\w.:>-]*(release|reset|emplace|clear|begin|push_back|report|note)\w*\(.*\);$", ""),
    (r"^ +[\w.\[\]\"*>-]+ [+]?= [^;]*;$", ""),
    (r"^ +case '.{1,2}': \w+ \+= .*break;$", ""),
    # The wrong buffer, the wrong field.
    (r"\bnames_", "values_"), (r"\bvalues_", "names_"), (r"\bsz_tag\b", "sz_value"), (r"\bspeakable_?\b", "normalized"),
    (r"\.first\(\)", ".last()"), (r"\.offset\b", ".length"), (r"\bbefore_number\b", "after_number"),
]]
STATEMENT = re.compile(r"^( +)[\w.>-]+\(.*\);$")  # two of them in the wrong order
LITERAL = re.compile(r"""'(?:[^'\\]|\\.)'|"(?:[^"\\]|\\.)*\"""")
NO_CODE = re.compile(r"^\s*(//|#|static_assert|assert|using|namespace|template|friend|enum)|^\S.*\) const;$")


def all_faults():
    """Every fault as (path, line number, the line or two before, the same after)."""
    for folder in FOLDERS:
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            lines = path.read_text().split("\n")
            for number, line in enumerate(lines):
                if NO_CODE.match(line):
                    continue
                first, second = STATEMENT.match(line), STATEMENT.match(lines[number + 1]) if line else None
                if first and second and first.group(1) == second.group(1) and line != lines[number + 1]:
                    yield path.relative_to(ROOT), number, line + "\n" + lines[number + 1], lines[number + 1] + "\n" + line
                code = re.sub(r"\s*//.*", "", line)
                for text in LITERAL.finditer(code):  # a blank of a reading
                    for less in {text.group().replace('" ', '"'), text.group().replace(' "', '"')} - {text.group()}:
                        yield path.relative_to(ROOT), number, line, code[:text.start()] + less + code[text.end():]
                for pattern, replacement in FAULTS:
                    for found in pattern.finditer(code):
                        instead = replacement if isinstance(replacement, str) else replacement(found)
                        yield (path.relative_to(ROOT), number, line,
                               code[:found.start()] + instead + code[found.end():])


def choose(faults, count):
    """So many faults, every so many of all: each file has its share."""
    count = min(count, len(faults))
    return [faults[i * len(faults) // count] for i in range(count)]


class Tree:
    """A copy of the project in which one fault after another is tried."""

    def __init__(self, number):
        self.root = ROOT / "build" / "mutate" / str(number)
        shutil.rmtree(self.root, ignore_errors=True)
        files = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, capture_output=True).stdout
        for name in files.decode().split("\0")[:-1]:
            (self.root / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, self.root / name)
        subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DKAVI_INSTALL=OFF",
                        "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON", "-DCMAKE_CXX_FLAGS=-O1"], cwd=self.root, check=True, capture_output=True)
        for tests in (ENGINE_TESTS, TOOL_TESTS):
            if self.outcome(tests) != "survived":
                sys.exit("The tests fail without a fault.")

    def outcome(self, tests):
        targets = {test.split()[0].split("/")[-1] for test in tests if test.startswith("build/tests")} | {"kavi-tn"}
        if tests is ENGINE_TESTS:
            targets.remove("kavi-tn")
        build = subprocess.run(["cmake", "--build", "build", "--target", *sorted(targets)],
                               cwd=self.root, capture_output=True)
        if build.returncode != 0:
            return "does not compile"
        return "survived" if all(self.passes(test.split()) for test in tests) else "killed"

    def passes(self, test):
        """Whether it ends well, and in time. What it has started and left running ends with it."""
        with subprocess.Popen(test, cwd=self.root, env={**os.environ, "KAVI_TEST_TEXTS": "600"}, start_new_session=True,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as run:
            try:
                return run.wait(SECONDS) == 0
            except subprocess.TimeoutExpired:
                return False
            finally:
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(run.pid, signal.SIGKILL)

    def try_fault(self, path, number, before, after):
        text = (self.root / path).read_text()
        lines = text.split("\n")
        lines[number:number + before.count("\n") + 1] = after.split("\n")
        (self.root / path).write_text("\n".join(lines))
        try:
            return self.outcome(TOOL_TESTS if path.parts[0] == "tools" else ENGINE_TESTS)
        finally:
            (self.root / path).write_text(text)


def known_survivors():
    """The faulty lines, blanks apart, that docs/survivors.txt explains."""
    text = (ROOT / "docs" / "survivors.txt").read_text()
    return {(path, "".join(line.split())) for path, line in re.findall(r"^(\S+): (.*)$", text, re.MULTILINE)}


def main():
    arguments = sys.argv[1:]
    faults = list(all_faults())
    if arguments[:1] == ["--only"]:
        faults = [fault for fault in faults if arguments[1] in str(fault[0])]
    else:
        faults = choose(faults, int(arguments[0]) if arguments else len(faults))
    trees = queue.Queue()
    for number in range(WORKERS):
        trees.put(Tree(number))

    def attempt(fault):
        tree = trees.get()
        try:
            return fault, tree.try_fault(*fault)
        finally:
            trees.put(tree)

    known = known_survivors()
    outcomes = {}
    unexplained = 0
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        for (path, number, before, after), outcome in pool.map(attempt, faults):
            explained = (str(path), "".join((after if after.strip() else "removed: " + before).split())) in known
            outcome = "explained" if outcome == "survived" and explained else outcome
            outcomes[outcome] = outcomes.get(outcome, 0) + 1
            if outcome == "survived":
                unexplained += 1
                print(f"{path}:{number + 1}: survived\n  - {before.strip()}\n  + {after.strip()}", flush=True)
    total = len(faults) - outcomes.get("does not compile", 0)
    print(f"{total} faults in {len({fault[0] for fault in faults})} files: {outcomes.get('killed', 0)} killed, "
          f"{outcomes.get('explained', 0)} survive for a reason, {unexplained} survive")
    sys.exit(unexplained > 0)


main()
