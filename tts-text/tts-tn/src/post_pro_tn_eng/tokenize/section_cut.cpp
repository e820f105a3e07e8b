#include "section_cut.h"

#include <cstring>

#include "../common/runs.h"
#include "../markup/markup_tags.h"

namespace kavi::tn {

namespace {

int class_of(char first) {
    if (is_letter(first)) return STRINGSYMBOL;
    return is_digit(first) ? NUMBERSYMBOL : MARKSYMBOL;
}

std::string_view first_run(Run run, const char* text) {
    std::size_t length = 0;
    while (length < WORD_LENGTH_MAX && belongs_to(run, text[length])) ++length;
    return {text, length};
}

}  // namespace

std::string_view first_section(const char* text, TagEnds& tag_ends) {
    if (belongs_to(LETTERS, *text)) return first_run(LETTERS, text);
    if (belongs_to(DIGITS, *text)) return first_run(DIGITS, text);
    if (*text == '<' && begins_sentence_tag(text)) {
        const std::string_view tag = tag_ends.tag_at(text);
        if (!tag.empty() && tag.size() <= WORD_LENGTH_MAX) return tag;
    }
    return {text, 1};
}

void set_section(Section& section, std::string_view text) {
    std::memcpy(section.sz_char, text.data(), text.size());
    section.sz_char[text.size()] = '\0';
    section.m_nmark = class_of(text[0]);
    section.m_pnext = section.m_pprevious = nullptr;
}

}  // namespace kavi::tn
