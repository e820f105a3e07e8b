// Letters and marks outside ASCII, as an English voice says them.

#include <utf8.h>

#include "rules.h"

namespace kavi::everyday {

namespace {

// For the letters from U+00C0 to U+017F, what they are without their marks; "" for what is no
// letter.
constexpr const char* LETTERS[] = {
    "A", "A", "A",  "A",  "A", "A", "Ae", "C", "E", "E", "E", "E", "I", "I", "I",  "I",   // C0
    "D", "N", "O",  "O",  "O", "O", "O",  "",  "O", "U", "U", "U", "U", "Y", "Th", "ss",  // D0
    "a", "a", "a",  "a",  "a", "a", "ae", "c", "e", "e", "e", "e", "i", "i", "i",  "i",   // E0
    "d", "n", "o",  "o",  "o", "o", "o",  "",  "o", "u", "u", "u", "u", "y", "th", "y",   // F0
    "A", "a", "A",  "a",  "A", "a", "C",  "c", "C", "c", "C", "c", "C", "c", "D",  "d",   // 100
    "D", "d", "E",  "e",  "E", "e", "E",  "e", "E", "e", "E", "e", "G", "g", "G",  "g",   // 110
    "G", "g", "G",  "g",  "H", "h", "H",  "h", "I", "i", "I", "i", "I", "i", "I",  "i",   // 120
    "I", "i", "Ij", "ij", "J", "j", "K",  "k", "k", "L", "l", "L", "l", "L", "l",  "L",   // 130
    "l", "L", "l",  "N",  "n", "N", "n",  "N", "n", "n", "N", "n", "O", "o", "O",  "o",   // 140
    "O", "o", "Oe", "oe", "R", "r", "R",  "r", "R", "r", "S", "s", "S", "s", "S",  "s",   // 150
    "S", "s", "T",  "t",  "T", "t", "T",  "t", "U", "u", "U", "u", "U", "u", "U",  "u",   // 160
    "U", "u", "U",  "u",  "W", "w", "Y",  "y", "Y", "Z", "z", "Z", "z", "Z", "z",  "s",   // 170
};
constexpr char32_t FIRST = 0xC0;
constexpr char32_t LAST = 0x17F;
static_assert(sizeof LETTERS / sizeof LETTERS[0] == LAST - FIRST + 1);

struct MarkRow {
    char32_t mark;
    const char* text;
};

// Marks that are written in ASCII otherwise. A dash is a pause, as a comma is.
constexpr MarkRow MARKS[] = {
    {0x2018, "'"}, {0x2019, "'"},    {0x201C, "\""}, {0x201D, "\""}, {0x201E, "\""},
    {0xAB, "\""},  {0xBB, "\""},     {0x2013, " "},  {0x2014, " "},  {0x2026, "."},
    {0xA0, " "},   {0x2009, " "},    {0x202F, " "},  {0x2011, "-"},  {0x2010, "-"},
    {0x2022, " "}, {0x2192, " to "}, {0xAD, ""},     {0x200B, ""},   {0x2212, "-"},
};

// The character at the begin of a text, and its length; 0 for bytes that are none.
char32_t character_at(std::string_view text, std::size_t& length) {
    const auto* at = text.begin();
    if (utf8::internal::validate_next(at, text.end()) != utf8::internal::UTF8_OK) return 0;
    length = static_cast<std::size_t>(at - text.begin());
    const auto* begin = text.begin();
    return utf8::next(begin, text.end());
}

}  // namespace

void read_letters(const Place& place, Found& found) {
    if (is_letter(place.peek()) && !is_outside_ascii(place.peek(place.run(is_letter)))) return;
    const std::size_t all = place.run(is_of_word);
    bool has_any = false;
    std::string words;
    std::size_t at = 0;
    while (at < all) {
        if (is_letter(place.peek(at))) {
            words += place.peek(at++);
            continue;
        }
        std::size_t length = 0;
        const char32_t c = character_at(place.rest(at), length);
        const char* letter = c >= FIRST && c <= LAST ? LETTERS[c - FIRST] : "";
        if (*letter == '\0') break;
        words += letter;
        has_any = true;
        at += length;
    }
    if (!has_any) return;
    found.length = at;
    found.words = words;
}

void read_typography(const Place& place, Found& found) {
    if (!is_outside_ascii(place.peek())) return;
    std::size_t length = 0;
    const char32_t c = character_at(place.rest(0), length);
    for (const MarkRow& row : MARKS) {
        if (c != row.mark) continue;
        found.length = length;
        found.words = row.text;
        return;
    }
}

}  // namespace kavi::everyday
