// The sections of a text as the readers see them, and looking along a row of them.
#ifndef KAVI_TN_TOKENS_H
#define KAVI_TN_TOKENS_H

#include <cstdint>
#include <string_view>

#include "../common/ascii.h"
#include "../markup/markup_tags.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Beside the three classes of Section::m_nmark: any other that a host may have given a section,
// which readers take for neither word nor number nor mark; and the token after the last section of
// a row.
constexpr signed char OTHER_CLASS = 3;
constexpr signed char NO_SECTION = -1;

// A section: a piece of a text, or the text of a section that a host holds. A token belongs to a
// row: SECTIONS_BEFORE more are before it, and nobody looks past one that is no section.
struct Token {
    const char* begin;
    std::uint16_t length;
    signed char kind;  // as in Section::m_nmark, OTHER_CLASS or NO_SECTION
    bool has_digits_only;
    Section* section;  // the host's, else null

    std::string_view text() const { return {begin, length}; }
    char first() const { return *begin; }
};

// Its text is empty.
constexpr Token NO_TOKEN = {"", 0, NO_SECTION, false, nullptr};

inline bool is_section(const Token* token) {
    return token->kind != NO_SECTION;
}

// The token `n` places on, or that after the last section.
inline const Token* ahead(const Token* token, int n) {
    while (n-- > 0 && is_section(token)) ++token;
    return token;
}

// Whether the token's whole text is the one character.
inline bool is_mark(const Token* token, char mark) {
    return token->length == 1 && token->first() == mark;
}

inline bool is_tag(const Token* token) {
    return token->length > 1 && begins_sentence_tag(token->begin);
}

// By the token's class. A host's may have more than digits.
inline bool is_number(const Token* token) {
    return token->kind == NUMBERSYMBOL;
}

inline bool is_ordinal_suffix(const Token* token) {
    if (token->length != 2) return false;
    switch (token->first()) {
        case 's': return token->begin[1] == 't';
        case 'r': return token->begin[1] == 'd';
        case 't': return token->begin[1] == 'h';
        default: return false;
    }
}

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKENS_H
