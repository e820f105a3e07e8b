// What the readers of patterns share.
#ifndef KAVI_TN_PARTS_H
#define KAVI_TN_PARTS_H

#include <cstdlib>

#include "../markup/markup_tags.h"
#include "../common/reading.h"
#include "sections.h"

namespace kavi::tn {

inline long value_of(const char* digits) {
    constexpr int BASE = 10;
    return std::strtol(digits, nullptr, BASE);
}

// A section that a pattern consumes where a number was expected: a markup tag must not get lost,
// since its partner stands elsewhere in the sentence, and a word is the user's; a mark says
// nothing.
inline void append_no_number(const Section* section, Reading& reading) {
    if (section->m_nmark == STRINGSYMBOL) {
        reading.append(section->sz_char);
    } else if (begins_sentence_tag(section->sz_char)) {
        reading.append_whole(section->sz_char);
    }
}

}  // namespace kavi::tn

#endif  // KAVI_TN_PARTS_H
