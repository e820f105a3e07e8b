// Apostrophes, straight and curly.

#include "rules.h"

namespace kavi::everyday {

namespace {

// The words as a sentence would begin with them.
void capitalise(std::string& words) {
    if (is_lower(words[0])) words[0] = static_cast<char>(words[0] - 'a' + 'A');
}

// The word with straight apostrophes in it, in lower case, and its length as written.
std::string word_with_apostrophes(const Place& place, std::size_t& length) {
    std::string word;
    constexpr std::size_t LONGEST = 64;  // so that a chain of apostrophes is not read from each
    length = 0;
    while (length < LONGEST) {
        const std::size_t mark = place.apostrophe(length);
        if (mark > 0 && (is_letter(place.peek(length + mark)) || word == "'n")) {
            word += '\'';
            length += mark;
        } else if (is_letter(place.peek(length))) {
            word += to_lower(place.peek(length));
            ++length;
        } else {
            break;
        }
    }
    return word;
}

}  // namespace

void read_contraction(const Place& place, Found& found) {
    const std::string_view stem = place.letters();
    const std::size_t mark = place.apostrophe(stem.size());
    if (mark == 0) return;
    std::size_t length = 0;
    const std::string word = word_with_apostrophes(place, length);
    if (const Row* row = find(CONTRACTIONS, word)) {
        found.length = length;
        found.words = row->spoken;
        if (is_upper(place.peek())) capitalise(found.words);
        return;
    }
    if (stem.empty()) return;
    const std::string_view ending = place.letters(stem.size() + mark);
    if (ending.empty()) {  // "the boys' bikes"
        if (to_lower(stem.back()) != 's') return;
        found.length = stem.size() + mark;
        found.words = stem;
        return;
    }
    const std::string lower = in_lower_case(ending);
    found.length = stem.size() + mark + ending.size();
    if (lower == "t" && stem.size() > 1 && to_lower(stem.back()) == 'n') {
        found.words = std::string(stem.substr(0, stem.size() - 1)) + " not";
        return;
    }
    found.words = stem;
    if (const Row* row = find(CONTRACTION_ENDINGS, lower)) {
        say(row->spoken, found.words);
    } else if (lower == "s" && find(BEFORE_IS, in_lower_case(stem)) != nullptr) {
        say("is", found.words);
    } else {
        found.words += ending;  // "Tom's", "O'Brien"
    }
}

}  // namespace kavi::everyday
