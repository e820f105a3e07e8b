// How a sentence is cut into sections.
#ifndef KAVI_TN_SECTION_CUT_H
#define KAVI_TN_SECTION_CUT_H

#include <string_view>

#include "../common/limits.h"
#include "../common/runs.h"
#include "../common/short_copy.h"
#include "../markup/markup_tags.h"
#include "../markup/tag_ends.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// The run that a section belongs to whose first character this is, of letters, of digits or none.
constexpr unsigned run_of(char first) {
    return RUNS[static_cast<unsigned char>(first)] & (LETTERS | DIGITS);
}

constexpr int class_of(unsigned run) {
    if (run == LETTERS) return STRINGSYMBOL;
    return run == DIGITS ? NUMBERSYMBOL : MARKSYMBOL;
}

// What may begin with a tag: the tag, or one byte. `tag_ends` serves one pass over the text.
std::string_view first_tag(const char* text, TagEnds& tag_ends);

// The first section of a text that is not empty, whose run is this: a run of letters or digits, a
// tag, or one byte. `tag_ends` serves one pass over the text.
inline std::string_view first_section(const char* text, unsigned run, TagEnds& tag_ends) {
    if (run == 0)
        return may_begin_tag(text) ? first_tag(text, tag_ends) : std::string_view(text, 1);
    std::size_t length = 1;
    while (length < WORD_LENGTH_MAX && belongs_to(static_cast<Run>(run), text[length])) ++length;
    return {text, length};
}
inline std::string_view first_section(const char* text, TagEnds& tag_ends) {
    return first_section(text, run_of(*text), tag_ends);
}

// Gives a section its text and class and no neighbours. The bytes after the text stay.
inline void set_section(Section& section, std::string_view text) {
    copy_short(section.sz_char, text.data(), text.size());
    section.sz_char[text.size()] = '\0';
    section.m_nmark = class_of(run_of(text[0]));
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
