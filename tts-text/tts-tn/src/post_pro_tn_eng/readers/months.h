// The names of months.
#ifndef KAVI_TN_MONTHS_H
#define KAVI_TN_MONTHS_H

#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi::tn {

// The full name of the month that a section's text names, by number, abbreviation or name, or null.
const char* month_name(std::string_view text);

inline bool is_month(const Section* section) {
    return section != nullptr && month_name(section->sz_char) != nullptr;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_MONTHS_H
