// The value of digits, and English words for them. Each operation that appends to a reading also
// notes the digits that it read.
#ifndef KAVI_TN_NUMBER_WORDS_H
#define KAVI_TN_NUMBER_WORDS_H

#include <cstddef>
#include <string_view>

#include "../common/reading.h"

namespace kavi::tn {

// The groups of three digits that are read of one number: twelve digits.
constexpr std::size_t GROUPS_MAX = 4;
constexpr std::size_t GROUP_DIGITS = 3;

// The value of the digits that a text begins with, 0 if there are none. Exact up to 9999; of a
// larger number, some value above that.
int value_of(std::string_view text);

// The scale word of a group with `groups_after` groups after it, 1 to 3: " thousand ", " million "
// or " billion ".
std::string_view scale_word(std::size_t groups_after);

// Appends the first three digits, or fewer, as a cardinal. Zeros have no words: zero hundreds
// append a blank, zero tens and units nothing.
void append_cardinal(std::string_view digits, Reading& reading);

// Appends one to three digits as an ordinal. False, with nothing appended, for any other length.
bool append_ordinal(std::string_view digits, Reading& reading);

// Appends digits of any length as a cardinal with scale words. Of more than twelve digits only the
// first four groups are read.
void append_number(std::string_view digits, Reading& reading);

// Appends the same as an ordinal: all groups but the last as cardinals, the last three digits as an
// ordinal.
void append_ordinal_number(std::string_view digits, Reading& reading);

// Appends the digits one by one, each with a blank after it. Any other character appends two
// blanks.
void append_each_digit(std::string_view digits, Reading& reading);

}  // namespace kavi::tn

#endif  // KAVI_TN_NUMBER_WORDS_H
