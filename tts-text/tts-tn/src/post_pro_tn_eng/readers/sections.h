// Looking along a queue of sections, past its end without harm.
#ifndef KAVI_TN_SECTIONS_H
#define KAVI_TN_SECTIONS_H

#include <cstring>

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// The section `n` places on, or null.
inline Section* ahead(Section* section, int n) {
    while (section != nullptr && n-- > 0) section = section->m_pnext;
    return section;
}

inline bool is_text(const Section* section, const char* text) {
    return section != nullptr && std::strcmp(section->sz_char, text) == 0;
}

// Whether the section's whole text is the one character.
inline bool is_mark(const Section* section, char mark) {
    return section != nullptr && section->sz_char[0] == mark && section->sz_char[1] == '\0';
}

// By the section's class, and by its text.
inline bool is_number(const Section* section) {
    return section != nullptr && section->m_nmark == NUMBERSYMBOL;
}
inline bool has_digits_only(const Section* section) {
    return section != nullptr && is_digits(section->sz_char);
}

// The value of the digits that the section begins with, as far as readers compare it: of any number
// above 9999, something above that.
inline int value_of(const Section* section) {
    constexpr int BASE = 10;
    constexpr int ENOUGH = 9999;
    int value = 0;
    for (const char* c = section->sz_char; is_digit(*c) && value <= ENOUGH; ++c) {
        value = value * BASE + (*c - '0');
    }
    return value;
}

inline bool is_ordinal_suffix(const Section* section) {
    return is_text(section, "st") || is_text(section, "rd") || is_text(section, "th");
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTIONS_H
