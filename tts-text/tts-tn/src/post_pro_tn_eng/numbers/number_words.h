// What digits are worth, and English words for them. Each operation that appends to a reading notes
// the digits it has read.
#ifndef KAVI_TN_NUMBER_WORDS_H
#define KAVI_TN_NUMBER_WORDS_H

#include <cstddef>
#include <string_view>

#include "../common/reading.h"

namespace kavi::tn {

// As many groups of three digits have scale words, which makes twelve digits.
constexpr std::size_t GROUPS_MAX = 4;
constexpr std::size_t GROUP_DIGITS = 3;

// The value of the digits that a text begins with, as far as readers compare it: of any number
// above 9999, something above that.
int value_of(std::string_view text);

// " thousand ", " million ", " billion ": after a group with so many (from 1) groups after it.
std::string_view scale_word(std::size_t groups_after);

// The first three digits, or fewer, as a cardinal. A zero is never spoken: zero hundreds are one
// blank, zero tens and units nothing.
void append_cardinal(std::string_view digits, Reading& reading);

// One to three digits as an ordinal. False, and nothing appended, for any other length.
bool append_ordinal(std::string_view digits, Reading& reading);

// Digits of any number as a cardinal with scale words: the first four groups; those after them are
// not read.
void append_number(std::string_view digits, Reading& reading);

// The same as an ordinal: the groups that have one after them as cardinals, the last three digits
// as an ordinal.
void append_ordinal_number(std::string_view digits, Reading& reading);

// Digit by digit, each with a blank after it; two blanks for what is no digit.
void append_each_digit(std::string_view digits, Reading& reading);

}  // namespace kavi::tn

#endif  // KAVI_TN_NUMBER_WORDS_H
