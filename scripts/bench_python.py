"""The Python package beside the same lines through the host layer in C++, and beside num2words.
Usage: bench_python.py LINES NANOSECONDS-A-LINE-IN-C++"""

import gc
import sys
import time

import kavi

try:
    import num2words
except ImportError:
    num2words = None


def best(work, times=7):
    """Seconds, of the fastest run."""
    fastest = 1e9
    gc.disable()
    for _ in range(times):
        begin = time.perf_counter()
        work()
        fastest = min(fastest, time.perf_counter() - begin)
    gc.enable()
    return fastest


missed = 0


def goal(text, figure, holds):
    global missed
    missed += not holds
    print(f"{'holds ' if holds else 'MISSED'}  {text}: {figure:.2f}")


with open(sys.argv[1], encoding="ascii") as file:
    lines = file.read().splitlines()
native = float(sys.argv[2])
reader = kavi.Reader()
batch = best(lambda: list(reader.normalize_many(lines))) / len(lines) * 1e9
goal(f"Python, a batch of {len(lines)} sentences, times C++ (at most 1.5)", batch / native, batch <= 1.5 * native)


def one_by_one():
    for line in lines:
        kavi.normalize(line)


single = best(one_by_one) / len(lines) * 1e9
goal("Python, one call, microseconds over C++ (below 2)", (single - native) / 1e3, single - native < 2000)
many = lines * 20
one = best(lambda: list(reader.normalize_many(many)), 3)
two = best(lambda: list(reader.normalize_many(many, jobs=2)), 3)
goal("Python, two jobs, times one (at least 1.7)", one / two, one / two >= 1.7)
if num2words:
    numbers = [str(n * 7919 % 100000) for n in range(2000)]
    ours = best(lambda: [kavi.normalize(n) for n in numbers])
    theirs = best(lambda: [num2words.num2words(int(n)) for n in numbers], 3)
    print(f"        numbers to words: {theirs / ours:.1f} times the rate of num2words")
sys.exit(missed > 0)
