"""What the host layer and each format of kavi-tn cost, in instructions a byte, beside the three calls and releases.
Usage: bench_tool.py FOLDER-OF-THE-BUILD"""

import pathlib
import statistics
import subprocess
import sys

from bench_common import TIMED, end, goal, instructions, median_seconds

built = pathlib.Path(sys.argv[1])
CALLS = str(built / "bench/kavi_bench_instructions")
TOOL = str(built / "tools/kavi-tn/kavi-tn")
CORPUS_BYTES = 200_000
LINE_MAX = 4000  # bytes, so that the calls take it whole
MEASURE = """import resource, subprocess, sys
subprocess.run(sys.argv[1:], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print(used.ru_utime + used.ru_stime, used.ru_maxrss / 1024)"""

# How often the cost of the calls on the prose, at most.
ROWS = [
    ("host layer", None, 0.85),
    ("`kavi-tn`", [], 1.1),
    ("`--plain`", ["--plain"], 1.4),
    ("`--words`", ["--words"], 2.5),
    ("`--format jsonl`", ["--format", "jsonl"], 3.0),
    ("`--explain`", ["--explain"], 3.0),
    ("`--format ssml`", ["--format", "ssml"], 2.0),
    ("`--format html`", ["--format", "html"], 4.0),
]


def paragraphs(files):
    """Of texts as people wrote them, one a line, up to CORPUS_BYTES."""
    lines, size = [], 0
    for file in files:
        for paragraph in file.read_bytes().split(b"\n\n"):
            line = b" ".join(paragraph.split())
            if 0 < len(line) <= LINE_MAX and size < CORPUS_BYTES:
                lines.append(line + b"\n")
                size += len(lines[-1])
    return b"".join(lines)


def corpora():
    """What every Debian system has: the licences, which are prose; and what packages have to say, which is dense with
    numbers, names of files and marks."""
    licences = [path for path in pathlib.Path("/usr/share/common-licenses").iterdir() if not path.is_symlink()]
    documents = [path for path in pathlib.Path("/usr/share/doc").glob("*/README*") if path.is_file() and path.suffix != ".gz"]
    for name, files in (("prose", licences), ("dense", documents)):
        path = built / f"{name}.txt"
        path.write_bytes(paragraphs(sorted(files)))
        yield path


def by_calls(what, function, path):
    """Twice over: the first time, the arena takes what it needs."""
    once, twice = (instructions([CALLS, what, times, str(path)], function)[0] for times in ("1", "2"))
    return (twice - once) / path.stat().st_size


def by_tool(options, path):
    """Without what it costs to start: that of the text twice, less that of it once."""
    twice = path.with_suffix(".twice")
    twice.write_bytes(2 * path.read_bytes())
    counts = [instructions([TOOL, "-j", "1", *options, str(text)])[0] for text in (path, twice)]
    return (counts[1] - counts[0]) / path.stat().st_size


prose, dense = corpora()
calls = [by_calls("all", "kavi::bench::read_bare", path) for path in (prose, dense)]
print("| instructions a byte, start-up apart | prose | dense | × the three calls and releases | at most |\n|---|---|---|---|---|")
print(f"| the three calls and releases | {calls[0]:.0f} | {calls[1]:.0f} | 1 | |", flush=True)
reached = []
for name, options, most in ROWS:
    cost = [by_calls("host", "kavi::TtsHost::read", path) if options is None else by_tool(options, path) for path in (prose, dense)]
    reached.append((name, cost[0] / calls[0], most))
    print(f"| {name} | {cost[0]:.0f} | {cost[1]:.0f} | {cost[0] / calls[0]:.2f} | {most} |", flush=True)
print()
for name, ratio, most in reached:
    goal(f"{name} on prose, times the calls", ratio, most=most)
places = [by_calls("places", "kavi::TtsHost::read", path) - by_calls("host", "kavi::TtsHost::read", path) for path in (prose, dense)]
goal("the places of all words on prose, of the calls", places[0] / calls[0], most=0.15)

# By the clock: news-like text in lines, in one line, and by two threads.
news = built / "news.txt"
if not news.exists():
    with news.open("wb") as file:
        subprocess.run([CALLS, "print", "20000000", "news"], stdout=file, check=True)
line = built / "news-line.txt"
long_line = built / "long-line.txt"
line.write_bytes(news.read_bytes().replace(b"\n", b" "))
with long_line.open("wb") as file:
    for _ in range(10):
        subprocess.run(["cat", str(line)], stdout=file, check=True)  # little memory here: a child begins with as much


def run(*arguments):
    """The processor's seconds and the megabytes of memory that it took."""
    tool = subprocess.Popen([sys.executable, "-c", MEASURE, TOOL, *map(str, arguments)], stdout=subprocess.PIPE)
    seconds, megabytes = map(float, tool.communicate()[0].split())
    return seconds, megabytes


def seconds_of(*arguments):
    return statistics.median(run(*arguments)[0] for _ in range(7))


goal("kavi-tn on one line, times the same in lines", seconds_of("-j", 1, line) / seconds_of("-j", 1, news), most=1.2, noise=TIMED)
one, two = (median_seconds(lambda jobs=jobs: run("-j", jobs, news)) for jobs in (1, 2))
goal("kavi-tn by two threads, times one", one / two, least=1.8, noise=TIMED)
for name, options, _ in ROWS[1:]:
    goal(f"{name} on one line of 200 MB, MB of memory", run(*options, long_line)[1], most=64)
end()
