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

texts = sorted({text for _, text in letters})
print("// Written by scripts/latin_letters from Unicode's data.\n")
print("constexpr char LETTERS_OF_ASCII[][4] = {")
for i in range(0, len(texts), 12):
    print("    " + " ".join(f'"{text}",' for text in texts[i:i + 12]))
print("};\n\n// In the order of their code points.\nconstexpr LatinLetter LATIN_LETTERS[] = {")
for i in range(0, len(letters), 8):
    print("    " + " ".join(f"{{0x{code:X}, {texts.index(text)}}}," for code, text in letters[i:i + 8]))
print("};\n\nconstexpr CodePointRange LETTERS_OF_ANY_SCRIPT[] = {")
for i in range(0, len(ranges), 6):
    print("    " + " ".join(f"{{0x{first:X}, 0x{end:X}}}," for first, end in ranges[i:i + 6]))
print("};")
