"""English text normalisation for text to speech.

>>> import kavi
>>> kavi.normalize("Dr. Smith paid $5.50 on 3/1/2020, ok?")
'doctor Smith paid five dollars fifty cents on the third of January two thousand twenty, ok?'
"""

from __future__ import annotations

import concurrent.futures
import itertools
import os
import threading
from collections import deque
from typing import Deque, Iterable, Iterator, List, NamedTuple, Optional, Union

from kavi import _kavi
from kavi._kavi import Result, Sentence
from kavi._types import Everyday, Finding, FindingCode, Mark, Pause, Run, Word

__all__ = ["Everyday", "Finding", "FindingCode", "Line", "Mark", "Pause", "Reader", "Result", "Run", "Sentence",
           "Word", "normalize", "normalize_many", "read", "read_file"]
__version__ = _kavi.version

_BATCH = 512  # texts that a thread is given at once


class Line(NamedTuple):
    """One line of a file."""

    number: int  # from 1
    text: str
    result: Result


class Reader:
    """Reads texts in one way. For one thread at a time; another one that calls it gets a RuntimeError.

    capacity: the most bytes of memory that the records of a sentence may take; 0: no limit.
    lexicon: a file of readings of your own, lines of what is written, a tab, and what is spoken.
    everyday: True for all classes of everyday English, or those that are wanted.
    american_dates: with Everyday.YEARS, 3/1/2020 is March first.

    Raises OSError for a lexicon that cannot be read, ValueError for one with a bad line.
    """

    def __init__(self, capacity: int = 0, lexicon: Union[str, "os.PathLike[str]", None] = None,
                 everyday: Union[bool, Everyday] = False, american_dates: bool = False) -> None:
        classes = (Everyday.ALL if everyday else Everyday.NONE) if isinstance(everyday, bool) else everyday
        name, lines = "", b""
        if lexicon is not None:
            name = os.fspath(lexicon)
            with open(name, "rb") as file:
                lines = file.read()
        self._settings = (capacity, name, lines, int(classes), american_dates)
        self._reader = _kavi.Reader(*self._settings)

    def normalize(self, text: str) -> str:
        """Returns the words that are spoken, with punctuation and blanks as written.

        Raises MemoryError when the capacity does not hold all of it.
        """
        return self._reader.normalize(text)

    def read(self, text: str, rules: bool = False) -> Result:
        """Returns sentences and findings; with `rules`, sentences tell which rule has read what."""
        return self._reader.read(text, rules)

    def normalize_many(self, texts: Iterable[str], jobs: int = 1) -> Iterator[str]:
        """Yields what normalize() returns for each text, in order, by so many threads at once.

        Holds a few thousand texts at a time; `texts` is advanced in the calling thread.
        """
        if jobs < 1:
            raise ValueError("jobs must be at least 1")
        source = iter(texts)
        batches = iter(lambda: list(itertools.islice(source, _BATCH)), [])
        if jobs == 1:
            for batch in batches:
                yield from self._reader.normalize_batch(batch)
            return
        local = threading.local()

        def work(batch: List[str]) -> List[str]:
            if not hasattr(local, "reader"):
                local.reader = _kavi.Reader(*self._settings)
            spoken: List[str] = local.reader.normalize_batch(batch)
            return spoken

        with concurrent.futures.ThreadPoolExecutor(jobs) as threads:
            ahead: Deque[concurrent.futures.Future[List[str]]] = deque()
            for batch in batches:
                ahead.append(threads.submit(work, batch))
                if len(ahead) > 2 * jobs:
                    yield from ahead.popleft().result()
            while ahead:
                yield from ahead.popleft().result()

    def read_file(self, path: Union[str, "os.PathLike[str]"], rules: bool = False) -> Iterator[Line]:
        """Yields the lines of a file, each read as a text of its own. What is no UTF-8 is not spoken."""
        with open(path, encoding="utf-8", errors="surrogateescape", newline="\n") as file:
            for number, line in enumerate(file, 1):
                text = line[:-1] if line.endswith("\n") else line
                yield Line(number, text, self.read(text, rules))


_local = threading.local()


def _default() -> Reader:
    reader: Optional[Reader] = getattr(_local, "reader", None)
    if reader is None:
        reader = _local.reader = Reader()
    return reader


def normalize(text: str) -> str:
    """Returns the words that are spoken for a text, with punctuation and blanks as written."""
    return _default().normalize(text)


def read(text: str, rules: bool = False) -> Result:
    """Returns what a text is read as; with `rules`, sentences tell which rule has read what."""
    return _default().read(text, rules)


def normalize_many(texts: Iterable[str], jobs: int = 1) -> Iterator[str]:
    """Yields what normalize() returns for each text, in order, by so many threads at once."""
    return Reader().normalize_many(texts, jobs)


def read_file(path: Union[str, "os.PathLike[str]"], rules: bool = False) -> Iterator[Line]:
    """Yields the lines of a file of any size, each read as a text of its own."""
    return Reader().read_file(path, rules)
