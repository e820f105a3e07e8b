#include "mark_readings.h"

namespace kavi::tn {

// clang-format off
constexpr MarkReading MARK_READINGS[25] = {
    {',', false, "<punc=dou> ",    "<punc=dou> ",    "<punc=dou> "},
    {'.', false, "<punc=ju> ",     "<punc=ju> ",     "<punc=ju> "},
    {':', false, "<punc=mao> ",    "<punc=mao> ",    "<punc=mao> "},
    {';', false, "<punc=fen> ",    "<punc=fen> ",    "<punc=fen> "},
    {'"', false, "<punc=zuoyin> ", "<punc=zuoyin> ", "<punc=zuoyin> "},
    {'?', false, "<punc=wen>",     "<punc=wen>",     "<punc=wen>"},
    {'(', false, READER,           READER,           "<punc=zuokuo>"},
    {')', false, "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>"},
    {'{', false, "<punc=zuokuo>",  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {'}', false, "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>"},
    {'[', false, "<punc=zuokuo>",  "<punc=zuokuo>",  "<punc=zuokuo>"},
    {']', false, "<punc=youkuo>",  "<punc=youkuo>",  "<punc=youkuo>"},
    {'+', false, "add ",           READER,           ""},
    {'-', false, "subtract ",      "minus ",         " "},
    {'*', false, "multiply ",      "asterisk ",      "asterisk "},
    {'/', false, "divide ",        " ",              " "},
    {'%', false, "percent ",       " ",              " "},
    {'=', false, "equal ",         "equal ",         "equal "},
    {'~', true,  "arrive ",        "arrive ",        "arrive "},
    {'>', false, "larger ",        "larger ",        "larger "},
    {'@', false, "at ",            "at ",            "at "},
    {'#', false, " ",              " ",              " "},
    {'$', false, READER,           READER,           " "},
    {'\'', false, READER,           READER,           READER},
    {'<', false, READER,           READER,           READER},
};
// clang-format on

namespace {

constexpr auto make_mark_rows() {
    std::array<unsigned char, 256> rows{};
    unsigned char number = 0;
    for (const MarkReading& row : MARK_READINGS) {
        rows[static_cast<unsigned char>(row.mark)] = ++number;
    }
    return rows;
}

}  // namespace

constexpr std::array<unsigned char, 256> MARK_ROWS = make_mark_rows();

}  // namespace kavi::tn
