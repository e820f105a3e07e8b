// What is written for the marks, one character each.
#ifndef KAVI_TN_MARK_READINGS_H
#define KAVI_TN_MARK_READINGS_H

#include <array>
#include <cstddef>

namespace kavi::tn {

// A mark's words after a number section, else before one, and otherwise. READER: the dispatcher has
// to look at more than the section before and after it. A mark that is in no row is silent.
struct MarkReading {
    char mark;
    const char* after_number;
    const char* before_number;
    const char* otherwise;
    bool spaced;  // a blank of its own follows the words
};

inline constexpr const char* READER = nullptr;

// clang-format off
inline constexpr MarkReading MARK_READINGS[] = {
    {',',  "<punc=dou> ",    "<punc=dou> ",    "<punc=dou> ",    false},
    {'.',  "<punc=ju> ",     "<punc=ju> ",     "<punc=ju> ",     false},
    {':',  "<punc=mao> ",    "<punc=mao> ",    "<punc=mao> ",    false},
    {';',  "<punc=fen> ",    "<punc=fen> ",    "<punc=fen> ",    false},
    {'"',  "<punc=zuoyin> ", "<punc=zuoyin> ", "<punc=zuoyin> ", false},
    {'?',  "<punc=wen>",     "<punc=wen>",     "<punc=wen>",     false},
    {'(',  READER,           READER,           "<punc=zuokuo>",  false},
    {')',  "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>",  false},
    {'{',  "<punc=zuokuo>",  "<punc=zuokuo>",  "<punc=zuokuo>",  false},
    {'}',  "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>",  false},
    {'[',  "<punc=zuokuo>",  "<punc=zuokuo>",  "<punc=zuokuo>",  false},
    {']',  "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>",  false},
    {'+',  "add ",           READER,           "",               false},
    {'-',  "subtract ",      "minus ",         " ",              false},
    {'*',  "multiply ",      "asterisk ",      "asterisk ",      false},
    {'/',  "divide ",        " ",              " ",              false},
    {'%',  "percent ",       " ",              " ",              false},
    {'=',  "equal ",         "equal ",         "equal ",         false},
    {'~',  "arrive ",        "arrive ",        "arrive ",        true},
    {'>',  "larger ",        "larger ",        "larger ",        false},
    {'@',  "at ",            "at ",            "at ",            false},
    {'#',  " ",              " ",              " ",              false},
    {'$',  READER,           READER,           " ",              false},
    {'\'', READER,           READER,           READER,           false},
    {'<',  READER,           READER,           READER,           false},
};
// clang-format on

constexpr auto make_mark_rows() {
    std::array<const MarkReading*, 256> rows{};
    for (const MarkReading& row : MARK_READINGS) rows[static_cast<unsigned char>(row.mark)] = &row;
    return rows;
}

inline constexpr auto MARK_ROWS = make_mark_rows();

// The row of a mark, or null.
constexpr const MarkReading* find_mark(char mark) {
    return MARK_ROWS[static_cast<unsigned char>(mark)];
}

// The words of a row for what stands before and after the mark, or READER.
constexpr const char* words_of(const MarkReading& row, bool after_number, bool before_number) {
    if (after_number) return row.after_number;
    return before_number ? row.before_number : row.otherwise;
}

// What is written for a "<" that begins no tag: as the last section or before "punc" it is spoken,
// before a ">" somewhere it is a blank, and silent otherwise.
constexpr const char* smaller_words(bool is_spoken, bool greater_follows) {
    if (is_spoken) return "smaller ";
    return greater_follows ? " " : "";
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MARK_READINGS_H
