// Looking along a queue of sections, past its end without harm.
#ifndef KAVI_TN_SECTIONS_H
#define KAVI_TN_SECTIONS_H

#include <cstdlib>
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

// The value of the digits that the section begins with, as the readers compare it.
inline long value_of(const Section* section) {
    constexpr int BASE = 10;
    return std::strtol(section->sz_char, nullptr, BASE);
}

inline bool is_ordinal_suffix(const Section* section) {
    return is_text(section, "st") || is_text(section, "rd") || is_text(section, "th");
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTIONS_H
