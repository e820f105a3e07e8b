// What an amount of money written before its "$" is made of.
#ifndef KAVI_TN_AMOUNTS_H
#define KAVI_TN_AMOUNTS_H

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// A number, or a mark between the groups of one.
inline bool belongs_to_amount(const Section* section) {
    const char first = section->sz_char[0];
    return first == ',' || first == '.' || is_digits(section->sz_char);
}

inline bool is_dollar(const Section* section) {
    return section != nullptr && section->sz_char[0] == '$';
}

}  // namespace kavi::tn

#endif  // KAVI_TN_AMOUNTS_H
