"""The Python package beside the same lines through the host layer in C++, and beside num2words.
Usage: bench_python.py LINES NANOSECONDS-A-LINE-IN-C++"""

import gc
import sys

import kavi
from bench_common import TIMED, end, goal, median_seconds

try:
    import num2words
except ImportError:
    num2words = None


def seconds(work, times=7):
    gc.disable()
    median = median_seconds(work, times)
    gc.enable()
    return median


with open(sys.argv[1], encoding="ascii") as file:
    lines = file.read().splitlines()
native = float(sys.argv[2])
reader = kavi.Reader()
batch = seconds(lambda: list(reader.normalize_many(lines))) / len(lines) * 1e9
goal(f"Python, a batch of {len(lines)} sentences, times C++", batch / native, most=1.5, noise=TIMED)
single = seconds(lambda: [kavi.normalize(line) for line in lines]) / len(lines) * 1e9
goal("Python, one call, microseconds over C++", (single - native) / 1e3, most=2, noise=TIMED)
read = seconds(lambda: [reader.read(line) for line in lines]) / len(lines) * 1e9
goal("Python, read(), times normalize_many()", read / batch, most=2, noise=TIMED)
with_words = seconds(lambda: [sentence.words for line in lines for sentence in reader.read(line).sentences]) / len(lines) * 1e9
goal("Python, read() with all words read, times normalize_many()", with_words / batch, most=4, noise=TIMED)
many = lines * 20
one = seconds(lambda: list(reader.normalize_many(many)), 3)
two = seconds(lambda: list(reader.normalize_many(many, jobs=2)), 3)
goal("Python, two jobs, times one", one / two, least=1.7, noise=TIMED)
if num2words:
    numbers = [str(n * 7919 % 100000) for n in range(2000)]
    ours = seconds(lambda: [kavi.normalize(n) for n in numbers])
    theirs = seconds(lambda: [num2words.num2words(int(n)) for n in numbers], 3)
    print(f"        numbers to words: {theirs / ours:.1f} times the rate of num2words")
end()
