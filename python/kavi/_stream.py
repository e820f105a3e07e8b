"""A text that is still being written."""

from __future__ import annotations

from typing import AsyncIterable, AsyncIterator, Iterable, Iterator, List

from kavi import _kavi
from kavi._kavi import Result, Sentence
from kavi._types import Finding, Utterance


class Stream:
    """Takes pieces of a text, and hands over utterances as soon as nothing that may follow can change them.

    Made by Reader.open_stream(). Pieces may end inside a word, a tag or a number. Offsets are code points from the begin of
    the stream. For one thread at a time.
    """

    def __init__(self, reader: _kavi.Reader, by: str, rules: bool) -> None:
        if by not in ("sentence", "clause"):
            raise ValueError(f"neither by sentence nor by clause: {by!r}")
        self._stream = _kavi.stream(reader, rules)
        self._by_clause = by == "clause"
        self._clear()

    def _clear(self) -> None:
        self._clauses: List[Sentence] = []
        self._findings: List[Finding] = []
        self._has_words = False

    def _take(self) -> Utterance:
        utterance = Utterance(tuple(self._clauses), tuple(self._findings))
        self._clear()
        return utterance

    # An utterance has a word: marks alone belong to the next.
    def _utterances(self, result: Result) -> Iterator[Utterance]:
        findings = list(result.findings)
        for number, clause in enumerate(result.sentences):
            while findings and findings[0].sentence == number:
                self._findings.append(findings.pop(0)._replace(sentence=len(self._clauses)))
            self._clauses.append(clause)
            self._has_words = self._has_words or len(clause.words) > 0
            if self._has_words and (self._by_clause or clause.ends_sentence):
                yield self._take()
        self._findings += [finding._replace(sentence=len(self._clauses)) for finding in findings]

    def add(self, piece: str) -> List[Utterance]:
        """The text goes on with this piece. Raises ValueError after the end."""
        return list(self._utterances(self._stream.add(piece)))

    def end(self) -> List[Utterance]:
        """The text ends here: the rest of it, which may be findings alone. Raises ValueError after the end."""
        utterances = list(self._utterances(self._stream.end()))
        if self._clauses or self._findings:
            utterances.append(self._take())
        return utterances

    def forget(self) -> None:
        """Drops what has not been handed over. What is added next begins a new text; its offsets go on. Also after the end."""
        self._stream.forget()
        self._clear()

    def read(self, pieces: Iterable[str]) -> Iterator[Utterance]:
        """Yields the utterances of a text from its pieces."""
        for piece in pieces:
            yield from self.add(piece)
        yield from self.end()

    async def aread(self, pieces: AsyncIterable[str]) -> AsyncIterator[Utterance]:
        """The same for pieces that are waited for."""
        async for piece in pieces:
            for utterance in self.add(piece):
                yield utterance
        for utterance in self.end():
            yield utterance
