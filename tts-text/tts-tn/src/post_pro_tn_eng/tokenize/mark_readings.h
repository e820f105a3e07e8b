// What is written for the marks, one character each.
#ifndef KAVI_TN_MARK_READINGS_H
#define KAVI_TN_MARK_READINGS_H

#include <array>
#include <cstddef>
#include <string_view>

#include "../common/bounded_text.h"

namespace kavi::tn {

// What may be written for a mark. READER: the dispatcher has to look at more than the section
// before and after it.
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

// In the order of MarkWords, from SILENT on.
extern const std::string_view MARK_TEXTS[SMALLER - SILENT + 1];

// Appends words that are not READER, and then a blank when they are `spaced`. False when there is
// no room.
inline bool append_mark(MarkWords words, bool spaced, BoundedText& output) {
    const std::string_view text = MARK_TEXTS[words - SILENT];
    return spaced ? output.append_spaced(text) : output.append(text);
}

// A mark's words after a number section, else before one, and otherwise. A mark that is in no row
// is silent.
struct MarkReading {
    char mark;
    bool spaced;  // a blank of its own follows the words
    MarkWords after_number;
    MarkWords before_number;
    MarkWords otherwise;
};

extern const MarkReading MARK_READINGS[25];

// For each character from "!" to "~" the number of its row, from 1; 0 for none.
extern const std::array<unsigned char, '~' - '!' + 1> MARK_ROWS;

// The row of a mark, or null.
inline const MarkReading* find_mark(char mark) {
    const unsigned place = static_cast<unsigned char>(mark) - unsigned{'!'};
    const unsigned number = place < MARK_ROWS.size() ? MARK_ROWS[place] : 0;
    return number != 0 ? &MARK_READINGS[number - 1] : nullptr;
}

// The words of a row for what comes before and after the mark, or READER.
constexpr MarkWords words_of(const MarkReading& row, bool after_number, bool before_number) {
    if (after_number) return row.after_number;
    return before_number ? row.before_number : row.otherwise;
}

// What is written for a "<" that begins no tag: as the last section or before "punc" it is spoken,
// before a ">" somewhere it is a blank, and silent otherwise.
constexpr MarkWords smaller_words(bool is_spoken, bool greater_follows) {
    if (is_spoken) return SMALLER;
    return greater_follows ? BLANK : SILENT;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MARK_READINGS_H
