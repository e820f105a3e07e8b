// The readers of patterns. A test (..._decide) tells whether its pattern begins at a token; the
// reader appends the pattern's words to a reading and returns the last token that it consumed, or,
// where there are too few, the one after the last section.
//
// What the tokenizer's speed rests on: no reader looks past a plain word that is followed neither
// by a digit nor by "." and a digit, or that comes after a blank, and none looks back past one.
#ifndef KAVI_TN_READERS_H
#define KAVI_TN_READERS_H

#include "../common/bounded_text.h"
#include "../common/reading.h"
#include "tokens.h"

namespace kavi::tn {

// A telephone number has at most so many sections.
constexpr int TELEPHONE_SECTIONS_MAX = 9;

// How far the readers look: so many tokens after the first of a pattern (after a bracket, a
// telephone number with the mark before it; after a "$", four groups, a suffix and cents), and so
// many before it.
constexpr int SECTIONS_AHEAD = TELEPHONE_SECTIONS_MAX + 1;
constexpr int SECTIONS_BEFORE = 2;

using Reader = const Token*(const Token* pattern, Reading& reading);

// ---- telephone: "area code ", then group by group, digit by digit, up to a word; one that begins
// there is consumed all the same ----
bool phone_number_decide(const Token* token);
const Token* phone_number_read(const Token* first, Reading& reading);

// ---- dates: day, "/" or "-", month, "/", year; no value is tested ----
bool data_decide(const Token* day);
const Token* data_number(const Token* day, Reading& reading);

// A year of two or four digits; nothing for any other.
void year_read(std::string_view digits, Reading& reading);

// Whether a plain number is read as a year: no shorter one is.
constexpr std::size_t YEAR_DIGITS = 4;
bool is_year(std::string_view digits);

// Whether a plain number is the day of a month beside it.
bool is_day_of_month(const Token* number);

// ---- amounts: fractions, decimals, money in dollars ----
bool fraction_decide(const Token* number);
const Token* fraction_number(const Token* number, Reading& reading);
bool decimal_decide(const Token* number);
const Token* decimal_number(const Token* number, Reading& reading);

// The amount after a "$", or before one.
const Token* currrency_read(const Token* amount, Reading& reading);

// ---- clock_times: of the form that time_decide has found; nothing of an incomplete one ----
enum TimeForm : int { NO_TIME = 0, SHORT_TIME = 1, LONG_TIME = 2 };
TimeForm time_decide(const Token* hours);
const Token* time_number(const Token* hours, TimeForm form, Reading& reading);

// ---- number_tokens: thousands separators, ordinal suffixes ----
const Token* str_number(const Token* number, Reading& reading);
const Token* turn(const Token* number, Reading& reading);

// A token that a pattern consumes where a number was expected: a word or a tag is appended whole,
// since the word is the user's and the tag's partner is elsewhere; a mark says nothing. False
// when there is no room: the reading then ends before the token.
bool append_no_number(const Token* token, Reading& reading);

// ---- marks: what "(", "+" and "'" mean depends on their neighbours ----

// A telephone number with a country code, when "(" before a number, or "+", begins one; else the
// mark alone is consumed, and nothing is read. Null when the output, which takes it piece by piece,
// is full.
using MarkReader = const Token*(const Token* mark, Reading& reading, BoundedText& output);
MarkReader bracket_read;
MarkReader plus_read;

// What the letters after an apostrophe stand for; empty when they are no contraction.
std::string_view find_contraction(std::string_view letters);

// The same of the token after an apostrophe; a host's section has it from then on.
std::string_view process_single_quote(const Token* apostrophe);

}  // namespace kavi::tn

#endif  // KAVI_TN_READERS_H
