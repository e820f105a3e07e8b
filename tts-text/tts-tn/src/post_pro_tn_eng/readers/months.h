// The names of months.
#ifndef KAVI_TN_MONTHS_H
#define KAVI_TN_MONTHS_H

#include <string_view>

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// The full name of the month that a section's text names, by number, abbreviation or name, or null.
const char* month_name(std::string_view text);

// Most sections are answered by their first character.
inline bool is_month(const Section* section) {
    if (section == nullptr) return false;
    const char first = section->sz_char[0];
    return (is_digit(first) || is_upper(first)) && month_name(section->sz_char) != nullptr;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MONTHS_H
