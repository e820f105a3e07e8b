// Words that end like one of the engine's abbreviations: a blank before the full stop keeps them.

#include "post_pro_tn_eng.h"
#include "rules.h"

namespace kavi::everyday {

namespace {

bool ends_alike(std::string_view word, std::string_view abbreviation) {
    if (word.size() < abbreviation.size()) return false;
    const std::string_view end = word.substr(word.size() - abbreviation.size());
    for (std::size_t i = 0; i < end.size(); ++i) {
        if (to_lower(end[i]) != to_lower(abbreviation[i])) return false;
    }
    return true;
}

}  // namespace

bool ends_like_abbreviation(std::string_view words) {
    for (const auto& row : s_spec_word_abbrevi) {
        const std::string_view written = row[0];
        if (ends_alike(words, written.substr(0, written.find('.')))) return true;
    }
    return false;
}

void read_shield(const Place& place, Found& found) {
    if (place.peek() != '.' || !is_letter(place.before())) return;
    const std::string_view word = place.letters_before();
    for (const auto& row : s_spec_word_abbrevi) {
        const std::string_view written = row[0];
        const std::string_view abbreviation = written.substr(0, written.find('.'));
        if (!ends_alike(word, abbreviation)) continue;
        // The abbreviation itself is left to the engine, but for words that are spelled alike.
        const bool is_star = word == "Sun" && place.word_before(word.size()) == "the";
        const bool is_of_number = word == "b" && is_digit(place.before(2));  // "section 6b."
        const bool is_word = word.size() > abbreviation.size() || word == "May" || word == "may" ||
                             word == "mar" || word == "B" || is_star || is_of_number;
        if (!is_word) return;
        found.length = 1;
        found.words = " .";
        return;
    }
}

}  // namespace kavi::everyday
