// The readers of patterns. A test (..._decide) tells whether its pattern begins at a token. A
// reader appends the words of the pattern to a reading and returns the last token that it consumed,
// or, when a part of the pattern is missing, the token after the last section.
//
// The rule of plain words, on which tokenize/plain_text and TokenWindow::Reach::plain_word rely: no
// reader looks past a plain word that comes after a blank, or that is followed neither by a digit
// nor by "." and a digit; and no reader looks back past a plain word. A new reader must keep it.
#ifndef KAVI_TN_READERS_H
#define KAVI_TN_READERS_H

#include "../common/bounded_text.h"
#include "../common/reading.h"
#include "tokens.h"

namespace kavi::tn {

// The sections of a telephone number, at most.
constexpr int TELEPHONE_SECTIONS_MAX = 9;

// The number of tokens after and before the first of a pattern that readers look at. The longest
// pattern is a bracket, a country code and a telephone number.
constexpr int SECTIONS_AHEAD = TELEPHONE_SECTIONS_MAX + 1;
constexpr int SECTIONS_BEFORE = 2;

using Reader = const Token*(const Token* pattern, Reading& reading);

// ---- telephone: "area code ", then at most nine sections digit by digit, up to the first word. A
// word that is the first section is consumed but not read. ----
bool phone_number_decide(const Token* token);
const Token* phone_number_read(const Token* first, Reading& reading);

// ---- dates: day, "/" or "-", month, "/", year; values are not tested ----
bool data_decide(const Token* day);
const Token* data_number(const Token* day, Reading& reading);

// Appends a year of two or four digits, nothing for any other length.
void year_read(std::string_view digits, Reading& reading);

// Whether a plain number is read as a year: it has at least YEAR_DIGITS digits and is 1100 to 9999.
constexpr std::size_t YEAR_DIGITS = 4;
bool is_year(std::string_view digits);

// Whether a plain number is the day of a month: a month is two tokens ahead, or one or two back.
bool is_day_of_month(const Token* number);

// ---- amounts: fractions, decimals, money in dollars ----
bool fraction_decide(const Token* number);
const Token* fraction_number(const Token* number, Reading& reading);
bool decimal_decide(const Token* number);
const Token* decimal_number(const Token* number, Reading& reading);

// An amount after or before a "$"; `amount` is its first number.
const Token* currrency_read(const Token* amount, Reading& reading);

// ---- clock_times: time_number reads the form that time_decide found, nothing of an incomplete
// one ----
enum TimeForm : int { NO_TIME = 0, SHORT_TIME = 1, LONG_TIME = 2 };
TimeForm time_decide(const Token* hours);
const Token* time_number(const Token* hours, TimeForm form, Reading& reading);

// ---- number_tokens: thousands separators, ordinal suffixes ----
const Token* str_number(const Token* number, Reading& reading);
const Token* turn(const Token* number, Reading& reading);

// Appends a token that a pattern consumes in the place of a number. A word or a tag is appended
// whole: a word must not be lost, nor a tag whose partner is elsewhere. A mark appends nothing.
// False when a word or tag does not fit: the pattern then ends before it.
bool append_no_number(const Token* token, Reading& reading);

// ---- marks: "(", "+" and "'", whose meaning depends on the tokens around them ----

// Reads a telephone number with a country code that begins with this "(" or "+" and appends it to
// the output, in pieces. When none begins, consumes the mark alone and appends nothing. Null when
// the output is full. A number follows the "(".
using MarkReader = const Token*(const Token* mark, Reading& reading, BoundedText& output);
MarkReader bracket_read;
MarkReader plus_read;

// The word for the letters after an apostrophe, such as "not" for "t". Empty when there is none.
std::string_view find_contraction(std::string_view letters);

// The same for the token after an apostrophe. In a queue of the host, the word replaces the text of
// its section.
std::string_view process_single_quote(const Token* apostrophe);

}  // namespace kavi::tn

#endif  // KAVI_TN_READERS_H
