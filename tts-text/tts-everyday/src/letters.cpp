// Letters and marks outside ASCII, as an English voice says them.

#include "rules.h"
#include "tokens.h"

namespace kavi::everyday {

namespace {

constexpr char32_t ELLIPSIS = 0x2026;

struct MarkRow {
    char32_t mark;
    const char* text;
};

// Marks that are written in ASCII otherwise. A dash is a pause, as a comma is. A blank before a
// full stop keeps the word before from being an abbreviation.
constexpr MarkRow MARKS[] = {
    {0x2018, "'"}, {0x2019, "'"},    {0x201C, "\""}, {0x201D, "\""}, {0x201E, "\""},
    {0xAB, "\""},  {0xBB, "\""},     {0x2013, " "},  {0x2014, " "},  {ELLIPSIS, " ."},
    {0xA0, " "},   {0x2009, " "},    {0x202F, " "},  {0x2011, "-"},  {0x2010, "-"},
    {0x2022, " "}, {0x2192, " to "}, {0x200B, " "},  {0x2212, "-"},
};

}  // namespace

// "café", "Nguyễn": Latin letters as those of ASCII, without what is upon them. Letters of other
// scripts stay.
void read_letters(const Place& place, Found& found) {
    if (is_letter(place.peek()) && !is_outside_ascii(place.peek(place.run(is_letter)))) return;
    const std::string_view word = place.part(0, place.word());
    bool has_any = false;
    for (std::size_t at = 0; at < word.size();) {
        const CodePoint c = code_point_at(word.substr(at));
        const char* letter = latin_letter(c.value);
        const bool is_dropped = at > 0 && is_silent(c.value);
        if (letter != nullptr) {
            found.words += letter;
        } else if (!is_dropped) {
            found.words += word.substr(at, c.length);
        }
        has_any = has_any || letter != nullptr || is_dropped;
        at += c.length;
    }
    if (has_any) found.length = word.size();
}

// One mark that is written in ASCII otherwise.
void read_typography(const Place& place, Found& found) {
    if (!is_outside_ascii(place.peek())) return;
    const CodePoint c = code_point_at(place.part(0, CODE_POINT_BYTES));
    for (const MarkRow& row : MARKS) {
        if (c.value != row.mark) continue;
        found.length = c.length;
        found.words = row.text;
        // In a sentence, an ellipsis is a pause.
        const std::size_t next = c.length + place.blanks(c.length);
        if (c.value == ELLIPSIS && is_lower(place.peek(next))) found.words = ", ";
        return;
    }
}

}  // namespace kavi::everyday
