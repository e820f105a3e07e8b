// Roman numerals after names of rulers, and after what is counted by them.

#include <algorithm>
#include <iterator>

#include "rules.h"

namespace kavi::everyday {

namespace {

constexpr std::string_view RULERS[] = {
    "Henry",     "Louis",    "Elizabeth", "George",    "Charles",  "James",    "Edward",
    "Richard",   "William",  "Mary",      "John",      "Paul",     "Pius",     "Benedict",
    "Francis",   "Napoleon", "Philip",    "Catherine", "Peter",    "Nicholas", "Alexander",
    "Frederick", "Wilhelm",  "Victor",    "Leo",       "Innocent", "Gregory",  "Clement",
    "Urban",     "Ivan",     "Ferdinand", "Alfonso",   "Harald",   "Margaret", "Otto",
    "Ramesses",  "Ptolemy",  "Cleopatra", "Carlos",    "Umberto",  "Gustav",   "Haakon",
    "Baldwin",   "Leopold",  "Albert",    "Rainier",   "Robert",   "Stephen"};

constexpr std::string_view COUNTED[] = {
    "War",     "Chapter",  "chapter", "Act",      "act",     "Part",     "part",   "Volume",
    "volume",  "Book",     "book",    "Section",  "section", "Bowl",     "Phase",  "phase",
    "Type",    "type",     "Class",   "Title",    "Level",   "level",    "Stage",  "stage",
    "Article", "Appendix", "Scene",   "scene",    "Grade",   "Mark",     "Figure", "Table",
    "Apollo",  "Rocky",    "Episode", "Division", "Pillar",  "Schedule", "Annex"};

int value_of(char c) {
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
int value_of(std::string_view numeral) {
    int value = 0;
    for (std::size_t i = 0; i < numeral.size(); ++i) {
        const int here = value_of(numeral[i]);
        const int next = i + 1 < numeral.size() ? value_of(numeral[i + 1]) : 0;
        if (here == 0) return 0;
        value += here < next ? -here : here;
    }
    return value;
}

template <std::size_t N>
bool is_one_of(std::string_view word, const std::string_view (&words)[N]) {
    return std::find(std::begin(words), std::end(words), word) != std::end(words);
}

}  // namespace

void read_roman(const Place& place, Found& found) {
    const std::string_view numeral = place.letters();
    if (numeral == "WWI" || numeral == "WWII") {
        found.words = numeral.size() == 3 ? "World War one" : "World War two";
        found.length = numeral.size();
        return;
    }
    if (value_of(place.peek()) == 0) return;
    const int value = value_of(numeral);
    const char after = place.peek(numeral.size());
    if (value == 0 || place.letter(numeral.size()) > 0 || after == '\'') return;
    const std::string_view before = place.word_before();
    if (is_one_of(before, RULERS)) {
        say("the", found.words);
        say_ordinal(std::to_string(value), found.words);
    } else if (is_one_of(before, COUNTED) && !(is_lower(before[0]) && numeral == "I")) {
        say_cardinal(std::to_string(value), found.words);
    } else {
        return;
    }
    found.length = numeral.size();
}

}  // namespace kavi::everyday
