// How a sentence is cut into sections.
#ifndef KAVI_TN_SECTION_CUT_H
#define KAVI_TN_SECTION_CUT_H

#include <string_view>

#include "../common/limits.h"
#include "../common/runs.h"
#include "../common/short_copy.h"
#include "../markup/tag_ends.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

constexpr int class_of(char first) {
    if (belongs_to(LETTERS, first)) return STRINGSYMBOL;
    return belongs_to(DIGITS, first) ? NUMBERSYMBOL : MARKSYMBOL;
}

// What begins with "<": a tag, or that byte. `tag_ends` serves one pass over the text.
std::string_view first_tag(const char* text, TagEnds& tag_ends);

// The first section of a text that is not empty: a run of letters or digits, a tag, or one byte.
// `tag_ends` serves one pass over the text.
inline std::string_view first_section(const char* text, TagEnds& tag_ends) {
    const auto run = static_cast<Run>(RUNS[static_cast<unsigned char>(*text)] & (LETTERS | DIGITS));
    if (run == 0) return *text == '<' ? first_tag(text, tag_ends) : std::string_view(text, 1);
    std::size_t length = 1;
    while (length < WORD_LENGTH_MAX && belongs_to(run, text[length])) ++length;
    return {text, length};
}

// Gives a section its text and class and no neighbours. What stands after the text is as it was.
inline void set_section(Section& section, std::string_view text) {
    copy_short(section.sz_char, text.data(), text.size());
    section.sz_char[text.size()] = '\0';
    section.m_nmark = class_of(text[0]);
    section.m_pnext = section.m_pprevious = nullptr;
}

// Links `section` after `tail`, which becomes it.
inline void link_section(Section& section, Section*& tail) {
    section.m_pprevious = tail;
    if (tail != nullptr) tail->m_pnext = &section;
    tail = &section;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_CUT_H
