// How a sentence is cut into sections.
#ifndef KAVI_TN_SECTION_CUT_H
#define KAVI_TN_SECTION_CUT_H

#include <string_view>

#include "../common/limits.h"
#include "../markup/tag_ends.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// The first section of a text that is not empty: a run of letters or digits, a tag, or one byte.
// `tag_ends` serves one pass over the text.
std::string_view first_section(const char* text, TagEnds& tag_ends);

// Gives a section its text and class and no neighbours. What stands after the text is as it was.
void set_section(Section& section, std::string_view text);

// Links `section` after `tail`, which becomes it.
inline void link_section(Section& section, Section*& tail) {
    section.m_pprevious = tail;
    if (tail != nullptr) tail->m_pnext = &section;
    tail = &section;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_CUT_H
