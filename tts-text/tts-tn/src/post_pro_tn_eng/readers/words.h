// The kinds of words.
#ifndef KAVI_TN_WORDS_H
#define KAVI_TN_WORDS_H

#include <string_view>

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class WordKind {
    plain,            // copied
    month,            // replaced by the full name
    telephone_label,  // "Tel", before a telephone number
    capitals,         // copied; the lexicon is asked
};

// The kind of a section of letters. The character after it, or a NUL, is looked at too.
WordKind word_kind(std::string_view word);

inline constexpr char TELEPHONE_LABEL[] = "Tel";

// The letters at this index of "Tel" and of the names and abbreviations of months: bit 0 for
// `first_of_case`.
constexpr unsigned letters_at(std::size_t index, char first_of_case) {
    unsigned letters = 1U << (TELEPHONE_LABEL[index] - first_of_case);
    for (const auto& row : s_string_to_month) {
        for (const char* name : row) letters |= 1U << (name[index] - first_of_case);
    }
    return letters;
}

inline constexpr unsigned FIRST_LETTERS = letters_at(0, 'A');
inline constexpr unsigned SECOND_LETTERS = letters_at(1, 'a');

// Whether a plain word begins at `text`, by its first two characters: a quick test that finds most
// of them. When it is false, word_kind decides. `text` is NUL-terminated.
inline bool begins_plain_word(const char* text) {
    if (is_lower(text[0])) return true;
    return is_upper(text[0]) && is_lower(text[1]) &&
           (FIRST_LETTERS >> (text[0] - 'A') & SECOND_LETTERS >> (text[1] - 'a') & 1U) == 0;
}

// Asks the lexicon for a word of at most 499 capitals and ignores the answer.
void ask_lexicon(std::string_view word);

}  // namespace kavi::tn

#endif  // KAVI_TN_WORDS_H
