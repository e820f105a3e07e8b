// Words that end like one of the engine's abbreviations: a blank before the full stop keeps them.

#include <array>

#include "post_pro_tn_eng.h"
#include "rules.h"

namespace kavi::everyday {

namespace {

constexpr std::size_t N_ABBREVIATIONS = std::size(s_spec_word_abbrevi);

// One of the engine's abbreviations, without its full stop.
struct Abbreviation {
    std::string_view text;
    char last;  // letter, in lower case
};
constexpr auto ABBREVIATIONS = [] {
    std::array<Abbreviation, N_ABBREVIATIONS> all{};
    for (std::size_t i = 0; i != N_ABBREVIATIONS; ++i) {
        std::size_t length = 0;
        while (s_spec_word_abbrevi[i][0][length] != '.') ++length;
        all[i] = {{s_spec_word_abbrevi[i][0], length},
                  to_lower(s_spec_word_abbrevi[i][0][length - 1])};
    }
    return all;
}();

bool ends_alike(std::string_view word, std::string_view abbreviation) {
    if (word.size() < abbreviation.size()) return false;
    const std::string_view end = word.substr(word.size() - abbreviation.size());
    for (std::size_t i = end.size(); i-- > 0;) {
        if (to_lower(end[i]) != to_lower(abbreviation[i])) return false;
    }
    return true;
}

// The length of the first abbreviation that a word ends like, or 0.
std::size_t abbreviation_at_end(std::string_view word) {
    if (word.empty()) return 0;
    const char last = to_lower(word.back());
    for (const Abbreviation& abbreviation : ABBREVIATIONS) {
        if (abbreviation.last == last && ends_alike(word, abbreviation.text))
            return abbreviation.text.size();
    }
    return 0;
}

}  // namespace

bool ends_like_abbreviation(std::string_view words) {
    return abbreviation_at_end(words) > 0;
}

void read_shield(const Cursor& cursor, Found& found) {
    if (cursor.peek() != '.' || !is_letter(cursor.before())) return;
    const std::string_view word = cursor.letters_before();
    const std::size_t length = abbreviation_at_end(word);
    if (length == 0) return;
    // The abbreviation itself is left to the engine, but for words that are spelled alike.
    const bool is_star = word == "Sun" && cursor.word_before(word.size()) == "the";
    // "section 6b.", "b. The second"; "(b. 1970)" is somebody's birth.
    const bool is_label = word == "b" && (is_digit(cursor.before(2)) || !is_digit(cursor.peek(2)));
    const bool is_word = word.size() > length || word == "May" || word == "may" || word == "mar" ||
                         word == "B" || is_star || is_label;
    if (!is_word) return;
    found.length = 1;
    found.words = " .";
}

}  // namespace kavi::everyday
