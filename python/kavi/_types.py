"""What a text is read as."""

from __future__ import annotations

import enum
from typing import TYPE_CHECKING, Dict, NamedTuple, Tuple

if TYPE_CHECKING:
    from kavi._kavi import Sentence


class Pause(enum.IntEnum):
    """How strong the pause after a word is, weakest first. Forced ones are where the text asks for them."""

    SYL = -2
    PHONE = -1
    SYLLABLE = 0
    WORD = 1
    PHRASE = 2
    INTONATION_PHRASE = 3
    SENTENCE = 4
    SYLLABLE_FORCED = 5
    WORD_FORCED = 6
    PHRASE_FORCED = 7
    INTONATION_PHRASE_FORCED = 8
    PLRULE_INTONATION_PHRASE_FORCED = 9


class Mark(enum.IntEnum):
    """A punctuation mark, by the engine's name; English writes it as the remark says."""

    UNKNOWN = 0
    DUN = 1
    DOU = 2  # ,
    FEN = 3  # ;
    JU = 4  # .
    WEN = 5  # ?
    TAN = 6  # !
    MAO = 7  # :
    ZUOSHU = 8
    YOUSHU = 9
    ZUOYIN = 10  # "
    YOUYIN = 11  # "
    ZUOKUO = 12  # (
    YOUKUO = 13  # )
    SHENGLUE = 14  # ...
    POZHE = 15  # -
    TNBEGIN = 16
    TNEND = 17
    POIB = 18
    POIE = 19


class Everyday(enum.IntFlag):
    """Classes of everyday English that are read by rules before the engine reads."""

    NONE = 0
    TITLES = 1 << 0
    CONTRACTIONS = 1 << 1
    CURRENCIES = 1 << 2
    UNITS = 1 << 3
    YEARS = 1 << 4
    TIMES = 1 << 5
    ADDRESSES = 1 << 6
    ROMAN = 1 << 7
    NUMBERS = 1 << 8
    LETTERS = 1 << 9
    SHIELDS = 1 << 10
    MARKS = 1 << 11
    ALL = (1 << 12) - 1


class FindingCode(str, enum.Enum):
    """What the engine passes over in silence, or could not do."""

    STRAY_CLOSING_TAG = "stray-closing-tag"
    MISMATCHED_CLOSING_TAG = "mismatched-closing-tag"
    TOO_MANY_OPEN_TAGS = "too-many-open-tags"
    TOO_MUCH_OPEN_MARKUP = "too-much-open-markup"
    TAG_TOO_LONG = "tag-too-long"
    TAG_INSIDE_TAG = "tag-inside-tag"
    TAG_NEVER_CLOSED = "tag-never-closed"
    NUL_BYTE = "nul-byte"
    NOT_SPOKEN = "not-spoken"
    DIGITS_NOT_READ = "digits-not-read"
    TAG_IN_TELEPHONE_NUMBER = "tag-in-telephone-number"
    READING_CUT = "reading-cut"
    ARENA_TOO_SMALL = "arena-too-small"
    SPAN_NEVER_CLOSED = "span-never-closed"
    FOREIGN_TAG = "foreign-tag"
    MARK_NOT_SPOKEN = "mark-not-spoken"


class Word(NamedTuple):
    """One spoken word and what follows it. Offsets and lengths are code points of the text."""

    text: str
    offset: int  # of what it was read from; the words of one number share it
    length: int
    pause: Pause
    marks: Tuple[Mark, ...]
    breaktime: str  # milliseconds as written; "" for none
    attributes: Dict[str, str]  # of the markup around it, by name
    after: str  # as written up to the next word: punctuation and blanks


class Run(NamedTuple):
    """A range of the text that one rule has read."""

    offset: int
    length: int
    rule: str
    reading: str


class Finding(NamedTuple):
    """Something that was not read, or not as written, and the range of the text that it is about."""

    code: FindingCode
    message: str
    offset: int
    length: int
    sentence: int  # the sentence it belongs to, from 0; the number of sentences for one after the last


class Utterance(NamedTuple):
    """What a stream hands over at once: a sentence, or a clause of one."""

    clauses: Tuple[Sentence, ...]
    findings: Tuple[Finding, ...]  # each `sentence` is the number of one of the clauses

    @property
    def plain(self) -> str:
        """What is spoken; those of all utterances, one after the other, are what normalize() returns."""
        return "".join(clause.plain for clause in self.clauses)

    @property
    def source(self) -> str:
        """As it was written."""
        return "".join(clause.source for clause in self.clauses)

    @property
    def words(self) -> Tuple[Word, ...]:
        """Their offsets are code points from the begin of the stream."""
        return tuple(word for clause in self.clauses for word in clause.words)
