from typing import Any, List, Tuple

from kavi._types import Finding, Run, Word

version: str
readings_version: int

class Sentence:
    """One sentence. Offsets and lengths are code points of the text. Can be compared, printed and pickled."""

    @property
    def source(self) -> str:
        """As it was written."""
    @property
    def offset(self) -> int: ...
    @property
    def length(self) -> int: ...
    @property
    def normalized(self) -> str:
        """The sentence as cut, with abbreviations written out."""
    @property
    def speakable(self) -> str:
        """Words and punctuation tags."""
    @property
    def plain(self) -> str:
        """`before`, then `text` and `after` of each word; those of all sentences, one after the other, are
        what normalize() returns."""
    @property
    def before(self) -> str:
        """As written before the first word: blanks and punctuation."""
    @property
    def head(self) -> Word:
        """What comes before the first word: marks and a break, without a word."""
    @property
    def words(self) -> Tuple[Word, ...]: ...
    @property
    def ends_sentence(self) -> bool:
        """False for a clause of a sentence that goes on."""
    @property
    def runs(self) -> Tuple[Run, ...]:
        """Which rule has read what; empty unless it was asked for."""

class Result:
    """What a text was read as. Can be compared, printed and pickled."""

    @property
    def sentences(self) -> Tuple[Sentence, ...]: ...
    @property
    def findings(self) -> Tuple[Finding, ...]: ...
    @property
    def complete(self) -> bool:
        """False when the capacity did not hold all of it."""

class Reader:
    def normalize(self, text: str) -> str: ...
    def normalize_batch(self, texts: List[str]) -> List[str]: ...
    def read(self, text: str, rules: bool) -> Result: ...
    def read_batch(self, texts: List[str], rules: bool) -> List[Result]: ...

class Stream:
    def add(self, piece: str) -> Result: ...
    def end(self) -> Result: ...
    def forget(self) -> None: ...

def stream(reader: Reader, rules: bool) -> Stream: ...
def reader(capacity: int, lexicon_name: str, lexicon: bytes, everyday: int, american_dates: bool) -> Reader: ...
def _sentence(*state: Any) -> Sentence: ...
def _result(*state: Any) -> Result: ...
def names() -> Tuple[List[str], List[str], List[str], List[str]]:
    """Pauses from the least, marks from 0, codes of findings, classes of everyday English: in their order."""
