"""What scripts/draw_sentences does: cuts texts into sentences and draws some of each kind."""

import email
import glob
import gzip
import html.parser
import random
import re
import subprocess
import sys

FORTUNES = ("cookie definitions disclaimer education food fortunes goedel humorists kids law literature magic "
            "medicine miscellaneous news people pets platitudes politics pratchett riddles science songs-poems sports "
            "startrek tao wisdom work").split()
RELEASE_NOTES = ("apt/README.md bash/NEWS coreutils/NEWS dpkg/changelog e2fsprogs/NEWS findutils/NEWS git/README.md "
                 "gnupg/NEWS grep/NEWS gzip/NEWS less/NEWS man-db/FAQ man-db/NEWS.md sed/NEWS sed/sedfaq.txt tar/NEWS "
                 "tzdata/changelog").split()
# How many of each kind in a hundred: nearly three quarters are prose, mail and speech.
SHARES = {"saying": 28, "mail": 30, "advert": 12, "bible": 3, "jargon": 10, "handbook": 9, "release": 8}

ABBREVIATIONS = ("Mr Mrs Ms Dr Prof St Sr Jr Rev Gen Col Capt Lt Sgt Gov Sen Rep Hon vs etc eg ie al cf No no Vol vol pp "
                 "Inc Ltd Co Corp Bros Dept Ave Blvd Rd Mt Ft Jan Feb Mar Apr Jun Jul Aug Sept Sep Oct Nov Dec Mon Tue "
                 "Wed Thu Fri Sat Sun Wm Geo Chas approx est ed Ed ft lb lbs oz in min sec hr hrs Fig fig Ch Ps").split()
ABBREVIATED = re.compile(rf"\b(?:(?:{'|'.join(ABBREVIATIONS)})|[A-Za-z](?:\.[A-Za-z])*)\.$")
# Something to normalise, the rarer first: a sentence counts for the first that it has.
FEATURES = [("sign", re.compile(r"[$%&@#+=/~^*°£€§²½–—…™©]")), ("digit", re.compile(r"\d")),
            ("abbreviation", re.compile(rf"\b(?:(?:{'|'.join(ABBREVIATIONS)})|[A-Za-z](?:\.[A-Za-z])+|[A-HJ-Z])\.")),
            ("capitals", re.compile(r"\b[A-Z]{2,}\b"))]
ENGLISH = re.compile(r"\b(?:the|of|to|a|an|is|are|was|in|and|you|that|for|it|on|with|be|have|not|by|at|this)\b", re.I)
WORD = re.compile(r"[\"'(\[*_“‘]*[A-Za-zÀ-ÿ]+(?:[-'’/][A-Za-zÀ-ÿ]+)*[\"')\]*_”’]*[.,;:!?]*[\"')”’]*")
# Code, mark-up, leaders, an address of a person, and what adverts for adults say.
REFUSED = re.compile(r"[{}\\|`\x00-\x1f\ufffd]|</|/>|<[a-z!]|\w\(\)|;$|[-_=*.~#]{4}|\S@\S|\w>|[<>]\S*[<>]|&\w+;|^\S+: |\.\. "
                     r"|(?i:sex|porn|xxx|nude|erot|penis|breast|viagra|fuck|shit|rape|nigger|whore|slut|orgasm)")


def sentences(paragraph):
    """The sentences of a paragraph, each with its closing mark."""
    words, begun = paragraph.split(), []
    for word, after in zip(words, words[1:] + ["A"]):
        begun.append(word)
        closes = re.search(r"[.!?][\"')\]”’]*$", word) and not ABBREVIATED.search(word)
        if closes and re.match(r"[\"'(\[“‘*]*[A-Z0-9]", after):
            yield " ".join(begun)
            begun = []


def feature(sentence):
    """What of the sentence needs normalising; None when nothing does or when it is no English prose."""
    words = sentence.split()
    if not 40 <= len(sentence) <= 220 or REFUSED.search(sentence) or len(ENGLISH.findall(sentence)) < 2:
        return None
    plain = sum(1 for word in words if WORD.fullmatch(word))
    if not re.match(r"[>\"'(\[“‘*]* ?[A-Z0-9$£]", sentence) or 4 * plain < 3 * len(words):
        return None
    return next((name for name, found in FEATURES if found.search(sentence)), None)


def paragraphs(text):
    """Blank lines, bullets and a deeper start part paragraphs; the mark of quoted mail stays at the start only."""
    for block in re.split(r"\n(?:[> ]*\n)+|\n\s*[-*•o+]\s+|\n\t+|\n%\n", "\n" + text):
        yield re.sub(r"\n[>| \t]*", " ", block.strip())


def packed(path):
    with gzip.open(path, "rt", encoding="utf-8", errors="replace") if path.endswith(".gz") else \
            open(path, encoding="utf-8", errors="replace") as text:
        return text.read()


def fortunes():
    for name in FORTUNES:
        for one in packed(f"/usr/share/games/fortunes/{name}.u8").split("\n%\n"):
            said, _, by = one.partition("\t-- ")
            yield from paragraphs(said)
            yield re.sub(r"\s+", " ", by)


def letters(folder, pattern):
    for path in sorted(glob.glob(f"{folder}/{pattern}/*.txt")):
        with open(path, "rb") as file:
            mail = email.message_from_bytes(file.read())
        for part in mail.walk():
            if part.get_content_type() == "text/plain":
                body = (part.get_payload(decode=True) or b"").decode("utf-8", "replace")
                yield from paragraphs(re.split(r"\n-- ?\n|\n_{5}|\n-{5}", body)[0])


def bible():
    verses = subprocess.run(["bible", "-f", "gen1:1-rev22:21"], stdin=subprocess.DEVNULL, capture_output=True, text=True)
    return (verse.partition(" ")[2] for verse in verses.stdout.splitlines())


class Paragraphs(html.parser.HTMLParser):
    """The handbook's running text: the text of <div class="para">, without listings."""

    def __init__(self):
        super().__init__()
        self.open, self.done = [], []

    def handle_starttag(self, tag, attrs):
        if tag == "div":
            self.open.append([] if ("class", "para") in attrs else None)

    def handle_endtag(self, tag):
        if tag == "div" and self.open:
            self.done.append(" ".join("".join(self.open.pop() or []).split()))

    def handle_data(self, data):
        if self.open and self.open[-1] is not None:
            self.open[-1].append(data)


def handbook():
    for path in sorted(glob.glob("/usr/share/doc/debian-handbook/html/en-US/*.html")):
        page = Paragraphs()
        page.feed(packed(path))
        yield from page.done


def release_notes():
    for name in RELEASE_NOTES:
        for path in sorted(glob.glob(f"/usr/share/doc/{name}*")):
            yield from paragraphs(packed(path))


def draw(texts, count, seed):
    """The sentences of the paragraphs by turns of their features, so that a frequent one does not crowd the others out."""
    found = {name: [] for name, _ in FEATURES}
    for sentence in sorted({one for text in texts for one in sentences(text)}):
        name = feature(sentence)
        if name:
            found[name].append(sentence)
    for name, those in found.items():
        random.Random(f"{seed} {name}").shuffle(those)
    turn = 0
    while count and any(found.values()):
        those = found[FEATURES[turn % len(FEATURES)][0]]
        turn += 1
        if those:
            yield those.pop()
            count -= 1


folder, seed, count = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
KINDS = {"saying": fortunes(), "mail": letters(folder, "*-ham-*"), "advert": letters(folder, "spam-*"), "bible": bible(),
         "jargon": paragraphs(packed("/usr/share/doc/jargon-text/jargon.txt.gz")), "handbook": handbook(),
         "release": release_notes()}
for kind, texts in KINDS.items():
    for sentence in draw(texts, round(count * SHARES[kind] / 100), seed):
        print(kind, sentence, sep="\t")
