// Tokens: the sections of a text as the readers see them, in a row.
#ifndef KAVI_TN_TOKENS_H
#define KAVI_TN_TOKENS_H

#include <cstdint>
#include <string_view>

#include "../common/ascii.h"
#include "../markup/markup_tags.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Kinds of token beside the three classes of Section::m_nmark: a section with any other value,
// which a host may have set and which is neither word nor number nor mark to the readers; and the
// token after the last section of a row.
constexpr signed char OTHER_CLASS = 3;
constexpr signed char NO_SECTION = -1;

// A view of a section, which is a part of a text or a Section of the host. A token is an element of
// a row: SECTIONS_BEFORE tokens precede it, and at least one follows each that is a section. So a
// reader may look at the next token of a section, but not past a token that is none.
struct Token {
    const char* begin;
    std::uint16_t length;
    signed char kind;  // as in Section::m_nmark, OTHER_CLASS or NO_SECTION
    bool has_digits_only;
    Section* section;  // of the host; null for a part of a text

    std::string_view text() const { return {begin, length}; }
    char first() const { return *begin; }
};

// The token that is no section. Its text is empty: is_mark and has_digits_only are false for it.
constexpr Token NO_TOKEN = {"", 0, NO_SECTION, false, nullptr};

inline bool is_section(const Token* token) {
    return token->kind != NO_SECTION;
}

// The token `n` after this one, or the token after the last section.
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

// By class. In a queue of the host, such a token need not have digits only.
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
