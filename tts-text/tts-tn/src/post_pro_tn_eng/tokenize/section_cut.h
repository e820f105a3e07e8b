// Cutting a sentence into sections.
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

// The kind of run of a section with this first character: LETTERS, DIGITS or 0.
constexpr unsigned run_of(char first) {
    return RUNS[static_cast<unsigned char>(first)] & (LETTERS | DIGITS);
}

constexpr int class_of(unsigned run) {
    if (run == LETTERS) return STRINGSYMBOL;
    return run == DIGITS ? NUMBERSYMBOL : MARKSYMBOL;
}

// The tag at `text`, or one byte when there is none or it is longer than a section. `tag_ends`
// serves one scan of the text.
std::string_view first_tag(const char* text, TagEnds& tag_ends);

// The first section of a text that is not empty: a run of at most 499 letters or digits, a tag, or
// one byte. `run` is run_of(*text). `tag_ends` serves one scan of the text.
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

// Sets the text and class of a section and clears its links. Bytes after the text are unchanged.
inline void set_section(Section& section, std::string_view text) {
    copy_short(section.sz_char, text.data(), text.size());
    section.sz_char[text.size()] = '\0';
    section.m_nmark = class_of(run_of(text[0]));
    section.m_pnext = section.m_pprevious = nullptr;
}

// Links `section` after `tail`, which may be null, and makes it the tail.
inline void link_section(Section& section, Section*& tail) {
    section.m_pprevious = tail;
    if (tail != nullptr) tail->m_pnext = &section;
    tail = &section;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_SECTION_CUT_H
