"""What the three calls cost, and what may come before them. Usage: bench_engine.py FOLDER-OF-THE-BUILD"""

import collections
import json
import pathlib
import sys

from bench_common import TIMED, end, goal, instructions

built = pathlib.Path(sys.argv[1])
CORPORA = ("prose", "news", "licences", "numbers", "markup")
KINDS = (*CORPORA, "marks", "letters", "nesting", "unclosed", "unclosed-tags", "unpaired", "too-long", "near-misses")
ENGINE = "kavi::PostProTnEng::eng_text_"


def a_byte(function, what, times, *kind):
    count, size = instructions([str(built / "bench/kavi_bench_instructions"), what, str(times), *kind], function)
    return count / int(size)


# Ten times over each corpus: the first time, the arena takes what it needs.
counted = {}
for corpus in CORPORA:
    for what, function, program in (
            ("normalize", ENGINE + "normalize", "all"), ("tokenize", ENGINE + "tokenize", "all"),
            ("build", ENGINE + "to_utterance_syllable", "all"), ("all", "kavi::bench::read_bare", "all"),
            ("floor", "kavi::bench::read_floor", "floor"), ("loop", "kavi::bench::count_words", "loop")):
        counted[f"{corpus}/{what}"] = a_byte(function, program, 10, corpus)
counted["prose/flite"] = a_byte("kavi::bench::flite_words", "flite", 1, "prose")
counted["prose/espeak-ng"] = a_byte("kavi::bench::espeak_phonemes", "espeak", 1, "prose")

runs = {run["name"]: run for run in json.loads((built / "times.json").read_text())["benchmarks"]}
rate = {name: run["bytes_per_second"] for name, run in runs.items()}
print("Corpus     call            MB/s   ns/word   instructions/byte")
for name, run in runs.items():
    kind, what, *more = name.split("/")
    if not more:
        count = f"{counted[name]:12.1f}" if name in counted else ""
        print(f"{kind:10} {what:12} {rate[name] / 1e6:9.1f} {run['cpu_time'] / max(run['words'], 1):9.1f} {count}")
print()

for corpus in CORPORA:
    print(f"        the floor on {corpus}, instructions a byte: {counted[corpus + '/floor']:.1f}")
for corpus in ("prose", "news", "licences"):
    goal(f"all calls and releases on {corpus}, times the floor", counted[f"{corpus}/all"] / counted[f"{corpus}/floor"], most=2.0)
for what in ("request", "release"):
    goal(f"the arena's usual {what}, instructions", a_byte(f"kavi::mem_stack_{what}_buf", "arena", 1000), most=12)
for corpus, most in (("news", 130), ("numbers", 330)):
    goal(f"the everyday rules on {corpus}, instructions a byte", a_byte("kavi::Everyday::next", "everyday", 2, corpus), most=most)
goal("the everyday rules on news, times the calls", rate["news/all"] / rate["news/everyday"], most=2, noise=TIMED)
goal("a lexicon of 100,000 lines on news, nanoseconds a byte", 1e9 / rate["news/lexicon"], most=10, noise=TIMED)
goal("loading it, seconds", runs["news/load"]["cpu_time"] / 1e9, most=0.2, noise=TIMED)

lengths = collections.defaultdict(dict)
for name in rate:
    kind, what, *more = name.split("/")
    if more and rate[name] > 0:  # a piece of that kind fits the length
        lengths[kind, what][int(more[0])] = 1e9 / rate[name]
for (kind, what), cost in lengths.items():
    short, most = {"length": (256, 1.3), "builder": (100000, 1.2), "host": (10000, 1.2)}[what]
    if what == "builder":  # counted: the records do not fit a cache, so the clock would measure the memory
        cost = {length: a_byte(ENGINE + "to_utterance_syllable", "build", length, kind) for length in cost}
    goal(f"{kind}, {what}: a byte of {max(cost)} to one of {short}", cost[max(cost)] / cost[short], most=most, noise=TIMED)
end()
