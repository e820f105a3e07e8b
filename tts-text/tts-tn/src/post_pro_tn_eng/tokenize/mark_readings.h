// The readings of marks: a table with a row for each.
#ifndef KAVI_TN_MARK_READINGS_H
#define KAVI_TN_MARK_READINGS_H

#include <array>
#include <string_view>

#include "../common/bounded_text.h"

namespace kavi::tn {

// What is written for a mark. READER: the sections before and after it do not decide it; the
// dispatcher does.
enum MarkWords : unsigned char {
    READER,
    SILENT,
    BLANK,
    DOU,
    JU,
    MAO,
    FEN,
    ZUOYIN,
    WEN,
    ZUOKUO,
    YOUKUO,
    ADD,
    SUBTRACT,
    MINUS,
    MULTIPLY,
    ASTERISK,
    DIVIDE,
    PERCENT,
    EQUAL,
    ARRIVE,
    LARGER,
    AT,
    SMALLER,
};

// The texts of MarkWords, in their order, from SILENT on.
extern const std::string_view MARK_TEXTS[SMALLER - SILENT + 1];

// Appends the text of `words`, which is not READER, and a blank if `spaced`. False when they do not
// fit.
inline bool append_mark(MarkWords words, bool spaced, BoundedText& output) {
    const std::string_view text = MARK_TEXTS[words - SILENT];
    return spaced ? output.append_spaced(text) : output.append(text);
}

// The readings of a mark: after a number; else before a number; else. A mark without a row is
// silent.
struct MarkReading {
    char mark;
    bool spaced;  // one more blank follows the text
    MarkWords after_number;
    MarkWords before_number;
    MarkWords otherwise;
};

extern const MarkReading MARK_READINGS[25];

// For each character from "!" to "~", 1 + the index of its row, or 0.
extern const std::array<unsigned char, '~' - '!' + 1> MARK_ROWS;

// The row of a mark. Null for a mark without one and for any other character.
inline const MarkReading* find_mark(char mark) {
    const unsigned index = static_cast<unsigned char>(mark) - unsigned{'!'};
    const unsigned number = index < MARK_ROWS.size() ? MARK_ROWS[index] : 0;
    return number != 0 ? &MARK_READINGS[number - 1] : nullptr;
}

// The reading by the sections before and after the mark; READER where they do not decide.
constexpr MarkWords words_of(const MarkReading& row, bool after_number, bool before_number) {
    if (after_number) return row.after_number;
    return before_number ? row.before_number : row.otherwise;
}

// The reading of a "<" that begins no tag. `is_spoken`: it is the last section, or "punc" follows;
// `greater_follows`: a section after it begins with ">".
constexpr MarkWords smaller_words(bool is_spoken, bool greater_follows) {
    if (is_spoken) return SMALLER;
    return greater_follows ? BLANK : SILENT;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MARK_READINGS_H
