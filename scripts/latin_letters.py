"""What scripts/latin_letters does: the tables, from the names and categories of Unicode's characters."""

import re

# What is no letter of ASCII with something added to it, by its name.
OTHERS = {"SHARP S": "ss", "ETH": "d", "THORN": "th", "ENG": "n", "KRA": "k", "SCHWA": "e", "ESH": "sh", "EZH": "zh",
          "WYNN": "w", "YOGH": "y", "OI": "gh", "HWAIR": "hv", "ALPHA": "a", "IOTA": "i", "UPSILON": "u", "GAMMA": "g",
          "PHI": "ph", "CHI": "ch", "OMEGA": "o", "BETA": "b", "DELTA": "d", "AFRICAN D": "d", "S T": "st"}
TWO = {"AE", "OE", "IJ", "DZ", "LJ", "NJ", "TS", "TC", "DB", "QP", "LS", "LZ", "FN", "AA", "AO", "AU", "AV", "AY", "OO",
       "VY", "TZ", "LL", "HV", "OU", "UE", "UO"}
SHAPES = r"(?:SMALL CAPITAL|INSULAR|DOTLESS|LONG|OPEN|REVERSED|TURNED|SIDEWAYS|INVERTED|SCRIPT|BARRED|CLOSED|BLACKLETTER|VISIGOTHIC|MIDDLE-WELSH) "
NAME = re.compile(rf"(?:FULLWIDTH )?LATIN (?P<case>SMALL |CAPITAL |)(?:LETTER|LIGATURE) (?:{SHAPES})*"
                  r"(?P<letter>SHARP S|AFRICAN D|S T|[A-Z]+)(?: (?:WITH|PRECEDED BY) .*| DIGRAPH.*)?$")
LIGATURES = {"FF", "FI", "FL", "FFI", "FFL", "ST"}


def as_ascii(name):
    """The letters of ASCII for a Latin letter; None for what has none."""
    found = NAME.match(name)
    if not found:
        return None
    letter = found["letter"]
    if len(letter) == 1 or letter in TWO or letter in LIGATURES:
        letter = letter.lower()
    elif letter in OTHERS:
        letter = OTHERS[letter]
    else:
        return None
    return letter.capitalize() if found["case"] == "CAPITAL " else letter


letters, ranges, last = [], [], None
with open("/usr/share/unicode/UnicodeData.txt") as data:
    for line in data:
        code, name, category = line.split(";")[:3]
        code = int(code, 16)
        if code > 127 and category in ("Lu", "Ll", "Lt", "Lo") and as_ascii(name):
            letters.append((code, as_ascii(name)))
        # An enclosing mark or a variation selector changes the look of an emoji.
        is_letter = category[0] in "LM" and category != "Me" and "VARIATION SELECTOR" not in name
        is_letter = (is_letter or name == "SOFT HYPHEN") and name != "INFORMATION SOURCE"
        if is_letter and code > 127:
            # What is assigned to nothing between two letters does no harm in a range.
            if last and last[1]:
                ranges[-1][1] = code
            else:
                ranges.append([code, code])
        last = (code, is_letter and code > 127)

# Letters with few code points between them are in one block; a range is as long as its row can tell.
blocks, LONGEST_GAP, LONGEST = [], 8, 2048
for code, text in letters:
    if not blocks or code > blocks[-1][0] + len(blocks[-1][1]) + LONGEST_GAP:
        blocks.append((code, []))
    first, block = blocks[-1]
    block += [""] * (code - first - len(block)) + [text]
ranges = [(at, min(at + LONGEST - 1, end)) for first, end in ranges for at in range(first, end + 1, LONGEST)]
texts = sorted({text for _, block in blocks for text in block} | {""})


def print_rows(head, rows, on_a_line):
    print(f"\n{head} = {{")
    for i in range(0, len(rows), on_a_line):
        print("    " + " ".join(f"{row}," for row in rows[i:i + on_a_line]))
    print("};")


print("// Written by scripts/latin_letters from Unicode's data.")
print_rows("constexpr char LETTERS_OF_ASCII[][4]", [f'"{text}"' for text in texts], 12)
print("\n// By block, for each code point the row of LETTERS_OF_ASCII.", end="")
print_rows("constexpr unsigned char LATIN_LETTERS[]", [texts.index(text) for _, block in blocks for text in block], 20)
at, rows = 0, []
for first, block in blocks:
    rows.append(f"{{0x{first:X}, {len(block)}, {at}}}")
    at += len(block)
print_rows("constexpr LatinBlock LATIN_BLOCKS[]", rows, 6)
print_rows("constexpr CodePointRange LETTERS_OF_ANY_SCRIPT[]", [f"{{0x{first:X}, 0x{end:X}}}" for first, end in ranges], 6)
