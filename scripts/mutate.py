"""What scripts/mutate runs."""

import collections
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
import time
from typing import List, NamedTuple

ROOT = pathlib.Path(__file__).resolve().parent.parent
WORKERS = len(os.sched_getaffinity(0))  # taskset -c 0 scripts/mutate: one
SECONDS = 60  # a fault that makes a test run so much longer than three times is noticed


class Part(NamedTuple):
    """Folders and files; how what is made of them is built; the programs that must notice a fault, the quickest first.

    {tree} is the copy of the project in which they run, {project} the project. Of the faults, `sample`
    are tried unless a number is given; of those tried, the share `noticed` must be noticed or explained.
    """

    paths: List[str]
    build: List[str]
    tests: List[str]
    sample: int = sys.maxsize
    noticed: float = 1


# Built with -O1: the compiler takes a little longer, the tests a quarter of their time.
TARGETS = "cmake --build build --target "
TN_TEST = "tests/kavi_tn_test.sh build/tools/kavi-tn/kavi-tn tools/kavi-tn/sample.txt"
NODE_TEST = "env KAVI_TN=build/tools/kavi-tn/kavi-tn KAVI_PACKAGE=build/web/package node --test"
FIRST_NODE_TEST = NODE_TEST + " --test-name-pattern=answers tests/web/"
PARTS = [
    Part(["tts-common/src", "tts-text/tts-tn/src", "tts-text/tts-host/src"],
         [TARGETS + "kavi_refusal_tests kavi_tests"],
         ["build/tests/kavi_refusal_tests --gtest_fail_fast",
          "build/tests/kavi_tests --gtest_fail_fast --gtest_filter=-Host*",
          "build/tests/kavi_tests --gtest_fail_fast --gtest_filter=Host*"]),
    Part(["tts-text/tts-everyday/src"],
         [TARGETS + "kavi_tests kavi-tn"],
         ["build/tests/kavi_tests --gtest_fail_fast --gtest_filter=Everyday*:Lexicon*:Rewriter*:Stream*",
          "python3 scripts/quality.py build/tools/kavi-tn/kavi-tn --rules"],
         sample=150, noticed=0.9),
    Part(["tools/kavi-tn"],
         [TARGETS + "kavi_tool_tests kavi-tn"],
         ["build/tests/kavi_tool_tests --gtest_fail_fast", TN_TEST]),
    Part(["tts-text/tts-c/src"],
         [TARGETS + "kavi_c_tests"],
         ["build/tests/kavi_c_tests --gtest_fail_fast"]),
    Part(["python/src", "python/kavi"],
         ["/usr/bin/python3 -m compileall -q --invalidation-mode checked-hash python/kavi", TARGETS + "kavi_python kavi-tn"],
         ["env KAVI_PROJECT={tree} KAVI_TN={tree}/build/tools/kavi-tn/kavi-tn PYTHONPATH={tree}/python PYTHONDONTWRITEBYTECODE=1"
          " /usr/bin/python3 -m pytest -q -x -p no:cacheprovider tests/python"]),
    # The modules are those of the project.
    Part(["web/kavi.js"],
         ["node --check web/kavi.js", "{project}/scripts/web --build", TARGETS + "kavi-tn", "mkdir -p build/web",
          "cp -r {project}/build/web/package build/web", "cp web/kavi.js build/web/package"],
         [FIRST_NODE_TEST, NODE_TEST + " tests/web/"]),
    Part(["web/src"],
         ["env GIT_DIR={project}/.git GIT_WORK_TREE={tree} scripts/web --build", TARGETS + "kavi-tn"],
         [NODE_TEST + " tests/web/"]),
    Part(["scripts/cluster/slurm"],
         ["bash -n scripts/cluster/slurm", TARGETS + "kavi-tn"],
         [TN_TEST + " clusters"]),
]

# What is looked for in a line of code, and what is put in its place.
CPP_FAULTS = [
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
]
ARITHMETIC = [
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" \+ (?=[\w])", " - "), (r" - (?=[\w])", " + "), (r" \+= ", " -= "), (r" \| ", " & "), (r" & ", " | "),
    (r"(?<=[\[(:, =])(\d+)(?=[\]),:;} ]|$)", lambda found: str(int(found.group()) + 1)),
]
PYTHON_FAULTS = ARITHMETIC + [
    (r" == ", " != "), (r" != ", " == "), (r" and ", " or "), (r" or ", " and "), (r"\bnot (?!in\b)", ""),
    (r" is None", " is not None"), (r" is not None", " is None"), (r" not in ", " in "), (r"(?<!for \w) in (?!range)", " not in "),
    (r"\bTrue\b", "False"), (r"\bFalse\b", "True"), (r"\breturn (?!None)\w.*$", "return None"),
    (r"^( +)(raise|yield|continue|break|[\w.]+\(|(self|local)[\w.]* = |[\w.]+\[.*\] = |\w+ [+|]= ).*$", r"\1pass"),
]
JAVASCRIPT_FAULTS = ARITHMETIC + [
    (r" === ", " !== "), (r" !== ", " === "), (r" && ", " || "), (r" \|\| ", " && "), (r" \?\?=? ", " && "),
    (r"(?<=[ (])!(?=[a-z(#])", ""), (r"(?<![\w+])\+\+", "--"),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"), (r"\breturn [\w(#].*;$", "return undefined;"),
    (r"\b(throw|yield) .*;$", ";"), (r"\bawait ", ""),
    (r"^ +(this\.)?[\w.#]+\(.*\);$", ""), (r"^ +[\w.#\[\]]+ [+]?= [^;]*;$", ""),
]
SHELL_FAULTS = [
    (r" && ", " || "), (r" \|\| ", " && "), (r"\[ -n ", "[ -z "), (r"\[ -([efrx]) ", r"[ ! -\1 "), (r"(?<=\[ )\$# -ge", "$# -gt"),
    (r"<= ", "< "), (r"\bexit 1", "exit 0"), (r"(?<=[=,])1(?=[;,])", "2"),
    (r"^( *)(shift|mkdir|mv|rm|stat|printf|echo|sleep) .*$", r"\1:"), (r"\brealpath (-m )?", "echo "),
    (r"[\w]+(\[[^]]*\])?\+?=\S+( \+ \S+)?(?=;|$| &&)", ":"), (r" --findings \S+", ""), (r"\b(\w+)\+=", r"\1="),
]
FAULTS = {suffix: [(re.compile(pattern), replacement) for pattern, replacement in faults] for suffix, faults in {
    ".cpp": CPP_FAULTS, ".h": CPP_FAULTS, ".py": PYTHON_FAULTS, ".js": JAVASCRIPT_FAULTS, "": SHELL_FAULTS}.items()}
STATEMENT = re.compile(r"^( +)[\w.>-]+\(.*\);$")  # two of them in the wrong order
LITERAL = re.compile(r"""'(?:[^'\\]|\\.)'|"(?:[^"\\]|\\.)*\"""")
NO_CODE = re.compile(r"^\s*(//|#|static_assert|assert|using|namespace|template|friend|enum|import|from|class|@)|^\S.*\) const;$")


class Fault(NamedTuple):
    part: Part
    path: pathlib.Path
    number: int  # of the first line
    before: str  # a line or two
    after: str


def all_faults():
    for part in PARTS:
        for place in part.paths:
            for path in sorted((ROOT / place).rglob("*")) if (ROOT / place).is_dir() else [ROOT / place]:
                if path.suffix in FAULTS and path.is_file():
                    for fault in dict.fromkeys(faults_of(path)):
                        yield Fault(part, path.relative_to(ROOT), *fault)


def faults_of(path):
    """Yields (line number, lines, faulty lines) for each fault of a file; some come twice."""
    lines = path.read_text().split("\n")
    is_document = False
    for number, line in enumerate(lines):
        is_document ^= line.count('"""') == 1
        if NO_CODE.match(line) or is_document or '"""' in line:
            continue
        first, second = STATEMENT.match(line), STATEMENT.match(lines[number + 1]) if line else None
        if first and second and first.group(1) == second.group(1) and line != lines[number + 1]:
            yield number, line + "\n" + lines[number + 1], lines[number + 1] + "\n" + line
        code = re.sub(r"\s*//.*" if path.suffix in (".cpp", ".h", ".js") else r"\s+# .*", "", line)
        for text in LITERAL.finditer(code if path.suffix in (".cpp", ".h") else ""):  # a blank of a reading
            for less in {text.group().replace('" ', '"'), text.group().replace(' "', '"')} - {text.group()}:
                yield number, line, code[:text.start()] + less + code[text.end():]
        for pattern, replacement in FAULTS[path.suffix]:
            for found in pattern.finditer(code):
                instead = found.expand(replacement) if isinstance(replacement, str) else replacement(found)
                yield number, line, code[:found.start()] + instead + code[found.end():]


def lines_changed():
    """The lines of each file, counted from 0, that are not as they are where this branch left origin/main."""
    def git(*words):
        return subprocess.run(["git", *words], cwd=ROOT, capture_output=True, text=True).stdout

    lines, path = collections.defaultdict(set), None
    for line in git("diff", "--unified=0", "--no-prefix", git("merge-base", "origin/main", "HEAD").strip() or "HEAD").split("\n"):
        if line.startswith("+++ "):
            path = pathlib.Path(line[4:])
        elif found := re.match(r"@@ -\S+ \+(\d+)(?:,(\d+))? @@", line):
            first = int(found.group(1)) - 1
            lines[path].update(range(first, first + int(found.group(2) or 1)))
    return lines


def choose(faults, count):
    """Picks `count` faults at even intervals, so that each file has its share."""
    count = min(count, len(faults))
    return [faults[i * len(faults) // count] for i in range(count)]


class Tree:
    """A copy of the project in which one fault after another is tried."""

    def __init__(self, number, parts):
        self.root = ROOT / "build" / "mutate" / str(number)
        self.seconds = {}  # that a test takes without a fault
        shutil.rmtree(self.root, ignore_errors=True)
        files = subprocess.run(["git", "ls-files", "-z"], cwd=ROOT, check=True, capture_output=True).stdout
        for name in files.decode().split("\0")[:-1]:
            (self.root / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, self.root / name)
        self.run("cmake -S . -B build -G Ninja -DKAVI_INSTALL=OFF -DCMAKE_COMPILE_WARNING_AS_ERROR=ON -DCMAKE_CXX_FLAGS=-O1"
                 " -DKAVI_BUILD_PYTHON=ON -DPython3_EXECUTABLE=/usr/bin/python3 -DKAVI_PYTHON_MODULE_DIR={tree}/python/kavi")
        for part in parts:
            for command in (*part.build, *part.tests):
                began = time.monotonic()
                if self.run(command, None) != 0:
                    sys.exit(f"Without a fault, this fails in {self.root}:\n{command}")
                self.seconds[command] = time.monotonic() - began

    def run(self, command, seconds=None):
        """Its status, or None when it takes too long. What it has started and left running ends with it."""
        words = [word.format(tree=self.root, project=ROOT) for word in command.split()]
        with subprocess.Popen(words, cwd=self.root, env={**os.environ, "KAVI_TEST_TEXTS": "600"}, start_new_session=True,
                              stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) as run:
            try:
                return run.wait(seconds)
            except subprocess.TimeoutExpired:
                return None
            finally:
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(run.pid, signal.SIGKILL)

    def outcome(self, part):
        if any(self.run(command) != 0 for command in part.build):
            return "does not compile"
        noticed = any(self.run(test, SECONDS + 3 * self.seconds[test]) != 0 for test in part.tests)
        return "killed" if noticed else "survived"

    def try_fault(self, fault):
        text = (self.root / fault.path).read_text()
        lines = text.split("\n")
        lines[fault.number:fault.number + fault.before.count("\n") + 1] = fault.after.split("\n")
        (self.root / fault.path).write_text("\n".join(lines))
        try:
            return self.outcome(fault.part)
        finally:
            (self.root / fault.path).write_text(text)


def known_survivors():
    """The faulty lines, blanks apart, that docs/survivors.txt explains."""
    text = (ROOT / "docs" / "survivors.txt").read_text()
    return {(path, "".join(line.split())) for path, line in re.findall(r"^(\S+): (.*)$", text, re.MULTILINE)}


def main():
    arguments = sys.argv[1:]
    faults = list(all_faults())
    if arguments[:1] == ["--only"]:
        faults = [fault for fault in faults if arguments[1] in str(fault.path)]
        arguments = arguments[2:]
    is_changed = arguments[:1] == ["--changed"]
    if is_changed:
        changed = lines_changed()
        faults = [fault for fault in faults if fault.number in changed[fault.path]] or faults
        arguments = arguments[1:]
    if arguments:
        faults = choose(faults, int(arguments[0]))
    elif not is_changed:
        faults = [fault for part in PARTS for fault in choose([f for f in faults if f.part is part], part.sample)]
    parts = [part for part in PARTS if any(fault.part is part for fault in faults)]
    trees = queue.Queue()
    for number in range(WORKERS):
        trees.put(Tree(number, parts))

    def attempt(fault):
        tree = trees.get()
        try:
            return fault, tree.try_fault(fault)
        finally:
            trees.put(tree)

    known = known_survivors()
    outcomes = [(part, collections.Counter()) for part in parts]
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        for fault, outcome in pool.map(attempt, faults):
            line = fault.after if fault.after.strip() not in ("", "pass", ":") else "removed: " + fault.before
            if outcome == "survived" and (str(fault.path), "".join(line.split())) in known:
                outcome = "explained"
            next(count for part, count in outcomes if part is fault.part)[outcome] += 1
            if outcome == "survived":
                print(f"{fault.path}:{fault.number + 1}: survived\n  - {fault.before.strip()}\n  + {fault.after.strip()}",
                      flush=True)
    too_many = False
    for part, count in outcomes:
        tried = count.total() - count["does not compile"]
        too_many |= count["survived"] > (1 - part.noticed) * tried
        print(f"{tried} faults in {', '.join(part.paths)}: {count['killed']} killed, "
              f"{count['explained']} survive for a reason, {count['survived']} survive")
    sys.exit(too_many)


main()
