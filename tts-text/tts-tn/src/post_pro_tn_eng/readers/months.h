// The names of months.
#ifndef KAVI_TN_MONTHS_H
#define KAVI_TN_MONTHS_H

#include <string_view>

#include "../common/ascii.h"
#include "tokens.h"

namespace kavi::tn {

// The full name of the month that a section's text names, by number, abbreviation or name, or null.
const char* month_name(std::string_view text);

// The number of a month, in one digit or two; 0 for any other text. The text begins with a digit.
// The first rows of the table of numbers are 1 to 12, those after them the same with two digits.
int month_number(std::string_view text);

// Most tokens are answered by their first character.
inline bool is_month(const Token* token) {
    if (is_digit(token->first())) return month_number(token->text()) > 0;
    return is_upper(token->first()) && month_name(token->text()) != nullptr;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MONTHS_H
