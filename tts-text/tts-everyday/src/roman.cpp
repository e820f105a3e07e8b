// Roman numerals after names of rulers, and after what is counted by them.

#include "rules.h"

namespace kavi::everyday {

namespace {

int value_of_letter(char c) {
    switch (c) {
        case 'I': return 1;
        case 'V': return 5;
        case 'X': return 10;
        case 'L': return 50;
        case 'C': return 100;
        default: return 0;
    }
}

// 0 for what is no numeral as they are written.
int value_of_numeral(std::string_view numeral) {
    int value = 0;
    for (std::size_t i = 0; i < numeral.size(); ++i) {
        const int here = value_of_letter(numeral[i]);
        const int next = i + 1 < numeral.size() ? value_of_letter(numeral[i + 1]) : 0;
        if (here == 0) return 0;
        value += here < next ? -here : here;
    }
    return value;
}

}  // namespace

void read_roman(const Place& place, Found& found) {
    const std::string_view numeral = place.letters();
    if (numeral == "WWI" || numeral == "WWII") {
        found.words = numeral.size() == 3 ? "World War one" : "World War two";
        found.length = numeral.size();
        return;
    }
    if (value_of_letter(place.peek()) == 0) return;
    const int value = value_of_numeral(numeral);
    const char after = place.peek(numeral.size());
    if (value == 0 || place.letter(numeral.size()) > 0 || after == '\'') return;
    const std::string_view before = place.word_before();
    if (find(RULERS, before) != nullptr) {
        say("the", found.words);
        say_ordinal(std::to_string(value), found.words);
    } else if (find(COUNTED_BY_ROMAN, before) != nullptr &&
               !(is_lower(before[0]) && numeral == "I")) {
        say_cardinal(std::to_string(value), found.words);
    } else {
        return;
    }
    found.length = numeral.size();
}

}  // namespace kavi::everyday
