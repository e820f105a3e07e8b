// Apostrophes, straight and curly.

#include <iterator>

#include "rules.h"

namespace kavi::everyday {

namespace {

struct ContractionRow {
    std::string_view written;
    const char* spoken;
};

// Of these, all of the word is another.
constexpr ContractionRow WHOLE[] = {
    {"won't", "will not"}, {"can't", "cannot"},   {"shan't", "shall not"}, {"ain't", "aint"},
    {"let's", "let us"},   {"o'clock", "oclock"}, {"ma'am", "maam"},       {"y'all", "yall"},
    {"'n'", "and"},        {"'tis", "it is"},     {"'twas", "it was"},     {"'em", "them"},
    {"'cause", "because"},
};

// These stand after the apostrophe; the words before it stay.
constexpr ContractionRow ENDINGS[] = {
    {"m", "am"}, {"ve", "have"}, {"ll", "will"}, {"re", "are"}, {"d", "would"},
};

// After these, "'s" is a verb; after others the genitive.
constexpr std::string_view BEFORE_IS[] = {"it",    "he",    "she",  "that", "what", "who",
                                          "where", "there", "here", "how",  "when", "why"};

// The length of an apostrophe so far on; 0 for none.
std::size_t apostrophe(const Place& place, std::size_t ahead) {
    if (place.peek(ahead) == '\'') return 1;
    return place.starts_with("’", ahead) || place.starts_with("‘", ahead) ? 3 : 0;
}

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
        const std::size_t mark = apostrophe(place, length);
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
    const std::size_t mark = apostrophe(place, stem.size());
    if (mark == 0) return;
    std::size_t length = 0;
    const std::string word = word_with_apostrophes(place, length);
    for (const ContractionRow& row : WHOLE) {
        if (word != row.written) continue;
        found.length = length;
        found.words = row.spoken;
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
    for (const ContractionRow& row : ENDINGS) {
        if (lower != row.written) continue;
        found.words = std::string(stem) + " " + row.spoken;
        return;
    }
    if (lower == "s") {
        const std::string before = in_lower_case(stem);
        for (const std::string_view pronoun : BEFORE_IS) {
            if (before != pronoun) continue;
            found.words = std::string(stem) + " is";
            return;
        }
    }
    found.words = std::string(stem) + std::string(ending);  // "Tom's", "O'Brien"
}

}  // namespace kavi::everyday
