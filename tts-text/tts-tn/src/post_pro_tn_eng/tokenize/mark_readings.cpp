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

namespace {

constexpr MarkText text(std::string_view words) {
    MarkText text{};
    for (const char c : words) text.text[text.length++] = c;
    return text;
}

}  // namespace

// clang-format off
constexpr MarkText MARK_TEXTS[] = {
    text(""),               // SILENT
    text(" "),              // BLANK
    text("<punc=dou> "),    // DOU
    text("<punc=ju> "),     // JU
    text("<punc=mao> "),    // MAO
    text("<punc=fen> "),    // FEN
    text("<punc=zuoyin> "), // ZUOYIN
    text("<punc=wen>"),     // WEN
    text("<punc=zuokuo>"),  // ZUOKUO
    text("<punc=youkuo>"),  // YOUKUO
    text("add "),           // ADD
    text("subtract "),      // SUBTRACT
    text("minus "),         // MINUS
    text("multiply "),      // MULTIPLY
    text("asterisk "),      // ASTERISK
    text("divide "),        // DIVIDE
    text("percent "),       // PERCENT
    text("equal "),         // EQUAL
    text("arrive "),        // ARRIVE
    text("larger "),        // LARGER
    text("at "),            // AT
    text("smaller "),       // SMALLER
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
