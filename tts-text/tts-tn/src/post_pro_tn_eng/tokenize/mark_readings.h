// What is written for the marks that are read by themselves.
#ifndef KAVI_TN_MARK_READINGS_H
#define KAVI_TN_MARK_READINGS_H

namespace kavi::tn {

// A mark's words behind a number section, and otherwise. A mark that is in no row and needs no
// reader is silent.
struct MarkReading {
    char mark;
    const char* behind_number;
    const char* otherwise;
};

// clang-format off
inline constexpr MarkReading MARK_READINGS[] = {
    {',',  "<punc=dou> ",    "<punc=dou> "},
    {'.',  "<punc=ju> ",     "<punc=ju> "},
    {':',  "<punc=mao> ",    "<punc=mao> "},
    {';',  "<punc=fen> ",    "<punc=fen> "},
    {'"',  "<punc=zuoyin> ", "<punc=zuoyin> "},
    {'?',  "<punc=wen>",     "<punc=wen>"},
    {')',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'{',  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {'}',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'[',  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {']',  "<punc=youkuo>",  "<punc=youkuo>"},
    {'*',  "multiply ",      "asterisk "},
    {'/',  "divide ",        " "},
    {'%',  "percent ",       " "},
    {'=',  "equal ",         "equal "},
    {'>',  "larger ",        "larger "},
    {'@',  "at ",            "at "},
    {'#',  " ",              " "},
};
// clang-format on

// The row of a mark, or null.
constexpr const MarkReading* find_mark(char mark) {
    for (const MarkReading& row : MARK_READINGS) {
        if (row.mark == mark) return &row;
    }
    return nullptr;
}

// Whether the mark, which is no "<" and stands behind no number, needs no reader, reads the same
// whatever follows and is written at one go.
constexpr bool is_plain_mark(char mark) {
    switch (mark) {
        case '(':
        case '+':
        case '-':
        case '~':
        case '\'':
        case '$': return false;
        default: return true;
    }
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MARK_READINGS_H
