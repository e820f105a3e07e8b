// The table of mark readings. Adding a mark: docs/changing_a_reading.md.

#include "mark_readings.h"

namespace kavi::tn {

// clang-format off
constexpr MarkReading MARK_READINGS[25] = {
    {',',  false, DOU,      DOU,      DOU},
    {'.',  false, JU,       JU,       JU},
    {':',  false, MAO,      MAO,      MAO},
    {';',  false, FEN,      FEN,      FEN},
    {'"',  false, ZUOYIN,   ZUOYIN,   ZUOYIN},
    {'?',  false, WEN,      WEN,      WEN},
    {'(',  false, READER,   READER,   ZUOKUO},
    {')',  false, YOUKUO,   YOUKUO,   YOUKUO},
    {'{',  false, ZUOKUO,   ZUOKUO,   ZUOKUO},
    {'}',  false, YOUKUO,   YOUKUO,   YOUKUO},
    {'[',  false, ZUOKUO,   ZUOKUO,   ZUOKUO},
    {']',  false, YOUKUO,   YOUKUO,   YOUKUO},
    {'+',  false, ADD,      READER,   SILENT},
    {'-',  false, SUBTRACT, MINUS,    BLANK},
    {'*',  false, MULTIPLY, ASTERISK, ASTERISK},
    {'/',  false, DIVIDE,   BLANK,    BLANK},
    {'%',  false, PERCENT,  BLANK,    BLANK},
    {'=',  false, EQUAL,    EQUAL,    EQUAL},
    {'~',  true,  ARRIVE,   ARRIVE,   ARRIVE},
    {'>',  false, LARGER,   LARGER,   LARGER},
    {'@',  false, AT,       AT,       AT},
    {'#',  false, BLANK,    BLANK,    BLANK},
    {'$',  false, READER,   READER,   BLANK},
    {'\'', false, READER,   READER,   READER},
    {'<',  false, READER,   READER,   READER},
};
// clang-format on

// clang-format off
constexpr std::string_view MARK_TEXTS[] = {
    "",               // SILENT
    " ",              // BLANK
    "<punc=dou> ",    // DOU
    "<punc=ju> ",     // JU
    "<punc=mao> ",    // MAO
    "<punc=fen> ",    // FEN
    "<punc=zuoyin> ", // ZUOYIN
    "<punc=wen>",     // WEN
    "<punc=zuokuo>",  // ZUOKUO
    "<punc=youkuo>",  // YOUKUO
    "add ",           // ADD
    "subtract ",      // SUBTRACT
    "minus ",         // MINUS
    "multiply ",      // MULTIPLY
    "asterisk ",      // ASTERISK
    "divide ",        // DIVIDE
    "percent ",       // PERCENT
    "equal ",         // EQUAL
    "arrive ",        // ARRIVE
    "larger ",        // LARGER
    "at ",            // AT
    "smaller ",       // SMALLER
};
// clang-format on

namespace {

constexpr auto make_mark_rows() {
    std::array<unsigned char, '~' - '!' + 1> rows{};
    unsigned char number = 0;
    for (const MarkReading& row : MARK_READINGS) {
        rows[static_cast<std::size_t>(row.mark - '!')] = ++number;
    }
    return rows;
}

}  // namespace

constexpr std::array<unsigned char, '~' - '!' + 1> MARK_ROWS = make_mark_rows();

}  // namespace kavi::tn
