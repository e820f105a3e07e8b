// Letters and marks outside ASCII, as an English voice says them.

#include "rules.h"
#include "tokens.h"

namespace kavi::everyday {

// "café", "Nguyễn": Latin letters as those of ASCII, without what is upon them. Letters of other
// scripts stay.
void read_letters(const Cursor& cursor, Found& found) {
    if (is_letter(cursor.peek()) && !is_outside_ascii(cursor.peek(cursor.run(is_letter)))) return;
    const std::string_view word = cursor.part(0, cursor.word());
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
void read_typography(const Cursor& cursor, Found& found) {
    if (!is_outside_ascii(cursor.peek())) return;
    const CodePoint c = code_point_at(cursor.part(0, CODE_POINT_BYTES));
    const Row* row = find(TYPOGRAPHY, cursor.part(0, c.length));
    if (row == nullptr) return;
    found.length = c.length;
    found.words = row->spoken();
    // In a sentence, an ellipsis is a pause.
    const std::size_t next = c.length + cursor.blanks(c.length);
    if (row->written() == "…" && is_lower(cursor.peek(next))) found.words = ", ";
}

}  // namespace kavi::everyday
