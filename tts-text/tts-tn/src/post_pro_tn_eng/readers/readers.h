// The readers of patterns. A test (..._decide) tells whether its pattern begins at a section; the
// reader appends the pattern's words to a reading and returns the last section that it consumed.
//
// What the tokenizer's speed rests on: no reader looks past a plain word that is followed neither
// by a digit nor by "." and a digit, and none looks back past one.
#ifndef KAVI_TN_READERS_H
#define KAVI_TN_READERS_H

#include "../common/bounded_text.h"
#include "../common/reading.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// A telephone number has at most so many sections.
constexpr int TELEPHONE_SECTIONS_MAX = 9;

// How far the readers look: so many sections after the first of a pattern (after a bracket, a
// telephone number with the mark before it; after a "$", four groups, a suffix and cents), and so
// many before it.
constexpr int SECTIONS_AHEAD = TELEPHONE_SECTIONS_MAX + 1;
constexpr int SECTIONS_BEFORE = 2;

// ---- telephone: "area code ", then group by group, digit by digit ----
bool phone_number_decide(const Section* section);
Section* phone_number_read(Section* section, Reading& reading);

// ---- dates: day, "/" or "-", month, "/", year; no value is tested ----
bool data_decide(Section* day);
Section* data_number(Section* day, Reading& reading);

// A year of two or four digits; nothing for any other.
void year_read(std::string_view digits, Reading& reading);

// Whether a plain number of this value is read as a year.
bool is_year(int value);

// Whether a plain number is the day of a month that stands beside it.
bool is_day_of_month(Section* number);

// ---- amounts: fractions, decimals, money in dollars ----
bool fraction_decide(Section* number);
Section* fraction_number(Section* number, Reading& reading);
bool decimal_decide(Section* number);
Section* decimal_number(Section* number, Reading& reading);

// Whether the section is a number, or a mark between the groups of one; and whether it is the "$"
// after them.
bool belongs_to_amount(const Section* section);
bool is_dollar(const Section* section);

// The amount after a "$", or before one. Null: the queue ran out.
Section* currrency_read(Section* amount, Reading& reading);

// ---- clock_times: of the form that time_decide has found ----
enum TimeForm : int { NO_TIME = 0, SHORT_TIME = 1, LONG_TIME = 2 };
TimeForm time_decide(Section* hours);
Section* time_number(Section* hours, TimeForm form, Reading& reading);  // null: incomplete

// ---- number_tokens: thousands separators, ordinal suffixes ----
Section* str_number(Section* number, Reading& reading);  // null: the queue ran out
Section* turn(Section* number, Reading& reading);

// A section that a pattern consumes where a number was expected: a word or a tag is appended whole,
// since the word is the user's and the tag's partner stands elsewhere; a mark says nothing. False
// when there is no room: the reading then ends before the section.
bool append_no_number(const Section* section, Reading& reading);

// ---- marks: what "(", "+" and "'" mean depends on their neighbours ----

// A telephone number with a country code, when "(" before a number, or "+", begins one; else null,
// and nothing is read. False when the output, which takes it piece by piece, is full.
bool bracket_read(Section* bracket, Reading& reading, BoundedText& output, Section*& last);
bool plus_read(Section* plus, Reading& reading, BoundedText& output, Section*& last);

// What the letters after an apostrophe stand for, or null.
const char* find_contraction(std::string_view letters);

// Rewrites the section after an apostrophe when that is a contraction.
void process_single_quote(Section* apostrophe);

}  // namespace kavi::tn

#endif  // KAVI_TN_READERS_H
