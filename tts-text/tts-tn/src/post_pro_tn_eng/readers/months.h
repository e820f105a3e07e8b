// Names and numbers of months.
#ifndef KAVI_TN_MONTHS_H
#define KAVI_TN_MONTHS_H

#include <string_view>

#include "../common/ascii.h"
#include "tokens.h"

namespace kavi::tn {

// The full name of the month that `text` gives as a number (1 or 01), an abbreviation or a name.
// Null for any other text.
const char* month_name(std::string_view text);

// The number of the month that `text`, which begins with a digit, gives in one or two digits. 0 for
// any other text.
int month_number(std::string_view text);

inline bool is_month(const Token* token) {
    if (is_digit(token->first())) return month_number(token->text()) > 0;
    return is_upper(token->first()) && month_name(token->text()) != nullptr;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MONTHS_H
