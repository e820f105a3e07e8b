// What kinds of word there are.
#ifndef KAVI_TN_WORDS_H
#define KAVI_TN_WORDS_H

#include <string_view>

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class WordKind {
    plain,            // spoken as it is
    month,            // its full name is spoken
    telephone_label,  // "Tel", which may have a number after it
    capitals,         // spoken as it is, too, but the lexicon is asked
};

// The kind of a section of letters, which something else or a NUL follows.
WordKind word_kind(std::string_view word);

inline constexpr char TELEPHONE_LABEL[] = "Tel";

// The letters at this place of "Tel" and the names of months: a bit for each, from the first of
// their case on.
constexpr unsigned letters_at(std::size_t place, char first_of_case) {
    unsigned letters = 1U << (TELEPHONE_LABEL[place] - first_of_case);
    for (const auto& row : s_string_to_month) {
        for (const char* name : row) letters |= 1U << (name[place] - first_of_case);
    }
    return letters;
}

inline constexpr unsigned FIRST_LETTERS = letters_at(0, 'A');
inline constexpr unsigned SECOND_LETTERS = letters_at(1, 'a');

// Whether what begins at `text`, a NUL-terminated one, is surely a plain word: most of those that
// are.
inline bool begins_plain_word(const char* text) {
    if (is_lower(text[0])) return true;
    return is_upper(text[0]) && is_lower(text[1]) &&
           (FIRST_LETTERS >> (text[0] - 'A') & SECOND_LETTERS >> (text[1] - 'a') & 1U) == 0;
}

// Asks the lexicon about a word in capitals, of at most 499. As yet its answer makes no difference.
void ask_lexicon(std::string_view word);

}  // namespace kavi::tn

#endif  // KAVI_TN_WORDS_H
