// Names of streets, in addresses.

#include "rules.h"

namespace kavi::everyday {

bool is_street_word(std::string_view word) {
    const Row* title = find(TITLES, word);
    return find(STREETS, word) != nullptr || (title != nullptr && title->kind == Kind::after);
}

bool is_street(const Cursor& cursor, std::size_t ahead) {
    constexpr std::size_t MOST_WORDS = 5;
    if (!is_upper(cursor.peek(ahead)) && !is_digit(cursor.peek(ahead))) return false;
    for (std::size_t n_words = 0; n_words < MOST_WORDS; ++n_words) {
        const std::string_view word = cursor.letters(ahead);
        if (n_words > 0 && is_street_word(word)) return !cursor.is_joined(ahead + word.size());
        const bool is_name = !word.empty() && is_upper(word[0]);
        ahead += is_name ? word.size() : ordinal_length(cursor, ahead);
        while (cursor.peek(ahead) == '-') ahead += 1 + cursor.letters(ahead + 1).size();
        if (is_name && cursor.peek(ahead) == '.') ++ahead;  // "N. Oak Ln"
        if (cursor.peek(ahead) != ' ') return false;
        ++ahead;
    }
    return false;
}

}  // namespace kavi::everyday
