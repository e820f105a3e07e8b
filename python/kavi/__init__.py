"""English text normalisation for text to speech.

>>> import kavi
>>> kavi.normalize("Dr. Smith paid $5.50 on 3/1/2020, ok?")
'doctor Smith paid five dollars fifty cents on the third of January two thousand twenty, ok?'
"""

from __future__ import annotations

import itertools
import os
import threading
from collections import deque
from typing import (Any, AsyncIterable, AsyncIterator, Callable, Deque, Iterable, Iterator, List, NamedTuple, Optional,
                    Tuple, TypeVar, Union, overload)

from kavi import _kavi
from kavi._kavi import Result, Sentence
from kavi._stream import Stream
from kavi._types import Everyday, Finding, FindingCode, Mark, Pause, Run, Utterance, Word

__all__ = ["Everyday", "Finding", "FindingCode", "Line", "Mark", "Pause", "Reader", "Result", "Run", "Sentence",
           "Stream", "Utterance", "Word", "normalize", "normalize_many", "read", "read_file", "read_many"]
__version__ = _kavi.version
readings_version = _kavi.readings_version  # the same number, the same readings

_BATCH = 512  # texts that a thread is given at once
_T = TypeVar("_T")


_CLASSES = {str(one.name).lower(): one for one in Everyday if one not in (Everyday.NONE, Everyday.ALL)}


def _classes(everyday: Union[bool, Everyday, str, Iterable[Union[str, Everyday]]]) -> Everyday:
    if isinstance(everyday, bool):
        return Everyday.ALL if everyday else Everyday.NONE
    if isinstance(everyday, int):
        if not 0 <= everyday <= Everyday.ALL:
            raise ValueError(f"no classes of everyday English: {everyday:#x}")
        return Everyday(everyday)
    classes = Everyday.NONE
    for one in [everyday] if isinstance(everyday, str) else everyday:
        if isinstance(one, str) and one not in _CLASSES:
            raise ValueError(f"no class of everyday English: {one}")
        classes |= _CLASSES[one] if isinstance(one, str) else _classes(one)
    return classes


class Line(NamedTuple):
    """One line of a file."""

    number: int  # from 1
    text: str
    result: Result


class Reader:
    """Reads texts in one way. For one thread at a time; another one that calls it gets a RuntimeError.

    capacity: the most bytes of memory that the records of a sentence may take; 0: no limit.
    lexicon: a file of readings of your own, lines of what is written, a tab, and what is spoken.
    everyday: True for all classes of everyday English, or those that are wanted, also by name: "units".
    american_dates: with Everyday.YEARS, 3/1/2020 is March first.

    Raises OSError for a lexicon that cannot be read, ValueError for one with a bad line, or for no such class.
    Readers with the same settings are equal; a reader is pickled with the lexicon that it has read.
    """

    def __init__(self, capacity: int = 0, lexicon: Union[str, "os.PathLike[str]", None] = None,
                 everyday: Union[bool, Everyday, str, Iterable[Union[str, Everyday]]] = False, american_dates: bool = False) -> None:
        name, lines = "", b""
        if lexicon is not None:
            name = os.fspath(lexicon)
            with open(name, "rb") as file:
                lines = file.read()
        self.__setstate__((capacity, name, lines, int(_classes(everyday)), american_dates))

    def __getstate__(self) -> Tuple[int, str, bytes, int, bool]:
        return self._settings

    def __setstate__(self, settings: Tuple[int, str, bytes, int, bool]) -> None:
        self._settings = settings
        self._reader = _kavi.reader(*settings)

    def __eq__(self, other: object) -> bool:
        return isinstance(other, Reader) and self._settings == other._settings

    def __hash__(self) -> int:
        return hash(self._settings)

    def __repr__(self) -> str:
        capacity, name, _, classes, american_dates = self._settings
        return (f"Reader(capacity={capacity}, lexicon={name or None!r}, everyday={Everyday(classes)!r}, "
                f"american_dates={american_dates})")

    def normalize(self, text: str) -> str:
        """Returns the words that are spoken, with punctuation and blanks as written.

        Raises MemoryError when the capacity does not hold all of it.
        """
        return self._reader.normalize(text)

    def read(self, text: str, rules: bool = False) -> Result:
        """Returns sentences and findings; with `rules`, sentences tell which rule has read what."""
        return self._reader.read(text, rules)

    def open_stream(self, by: str = "sentence", rules: bool = False) -> Stream:
        """Returns a stream, which takes a text that is still being written piece by piece and reads as this reader
        does. `by`: "sentence", or "clause" for the least delay."""
        return Stream(self._reader, by, rules)

    @overload
    def stream(self, pieces: Iterable[str], by: str = ..., rules: bool = ...) -> Iterator[Utterance]: ...
    @overload
    def stream(self, pieces: AsyncIterable[str], by: str = ..., rules: bool = ...) -> AsyncIterator[Utterance]: ...
    def stream(self, pieces: Union[Iterable[str], AsyncIterable[str]], by: str = "sentence",
               rules: bool = False) -> Union[Iterator[Utterance], AsyncIterator[Utterance]]:
        """Yields the utterances of a text that comes in pieces, each as soon as nothing that may follow can change it;
        from pieces that are waited for, to "async for". Whoever stops the loop drops the rest."""
        stream = self.open_stream(by, rules)
        return stream.aread(pieces) if isinstance(pieces, AsyncIterable) else stream.read(pieces)

    def normalize_many(self, texts: Iterable[str], jobs: int = 1) -> Iterator[str]:
        """Yields what normalize() returns for each text, in order, by `jobs` threads at once.

        Holds a few thousand texts at a time; `texts` is advanced in the calling thread. Raises TypeError for a str,
        which is one text, ValueError for fewer jobs than one, and MemoryError as normalize().
        """
        return self._many(texts, jobs, lambda reader, batch: reader.normalize_batch(batch))

    def read_many(self, texts: Iterable[str], rules: bool = False, jobs: int = 1) -> Iterator[Result]:
        """Yields what read() returns for each text; all else as normalize_many()."""
        return self._many(texts, jobs, lambda reader, batch: reader.read_batch(batch, rules))

    def _many(self, texts: Iterable[str], jobs: int, read: Callable[[_kavi.Reader, List[str]], List[_T]]) -> Iterator[_T]:
        if isinstance(texts, str):
            raise TypeError("texts is a str: one text is not many")
        if jobs < 1:
            raise ValueError("jobs must be at least 1")
        source = iter(texts)
        return self._batches(iter(lambda: list(itertools.islice(source, _BATCH)), []), jobs, read)

    def _batches(self, batches: Iterator[List[str]], jobs: int, read: Callable[[_kavi.Reader, List[str]], List[_T]]) -> Iterator[_T]:
        if jobs == 1:
            for batch in batches:
                yield from read(self._reader, batch)
            return
        from concurrent.futures import Future, ThreadPoolExecutor  # most of what it would take to import this package

        local = threading.local()

        def work(batch: List[str]) -> List[_T]:
            if not hasattr(local, "reader"):
                local.reader = _kavi.reader(*self._settings)
            return read(local.reader, batch)

        with ThreadPoolExecutor(jobs) as threads:
            ahead: Deque[Future[List[_T]]] = deque()
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


# What pickles name; the module's own functions cannot be.
def _sentence(*state: Any) -> Sentence:
    return _kavi._sentence(*state)


def _result(*state: Any) -> Result:
    return _kavi._result(*state)


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
    """Yields what normalize() returns for each text, in order, by `jobs` threads at once."""
    return Reader().normalize_many(texts, jobs)


def read_many(texts: Iterable[str], rules: bool = False, jobs: int = 1) -> Iterator[Result]:
    """Yields what read() returns for each text, in order, by `jobs` threads at once."""
    return Reader().read_many(texts, rules, jobs)


def read_file(path: Union[str, "os.PathLike[str]"], rules: bool = False) -> Iterator[Line]:
    """Yields the lines of a file of any size, each read as a text of its own."""
    return Reader().read_file(path, rules)
