// Roman numerals after names of rulers, after what is counted by them, and after other names.

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

// Below 400.
std::string roman_of(int value) {
    constexpr std::pair<int, const char*> STEPS[] = {
        {100, "C"}, {90, "XC"}, {50, "L"}, {40, "XL"}, {10, "X"},
        {9, "IX"},  {5, "V"},   {4, "IV"}, {1, "I"},
    };
    std::string numeral;
    for (const auto& [step, letters] : STEPS) {
        for (; value >= step; value -= step) numeral += letters;
    }
    return numeral;
}

// The numerals that follow any name, as no other word is spelled alike: "MaXLine II".
bool is_plain_numeral(std::string_view numeral) {
    constexpr std::string_view PLAIN[] = {"II", "III", "VII", "VIII", "XII", "XIII", "XIV", "XVI"};
    return std::find(std::begin(PLAIN), std::end(PLAIN), numeral) != std::end(PLAIN);
}

bool is_name(std::string_view word) {
    return word.size() > 1 && is_upper(word[0]) && is_lower(word.back());
}

// "Barrera III" after "Joseph S. ", "Joseph ": a person has a given name, and may have an initial.
bool is_person(const Place& place, std::string_view name) {
    const std::size_t blank = 1 + name.size() + 1;
    if (place.before(blank) != ' ') return false;
    const bool has_initial = place.before(blank + 1) == '.' && is_upper(place.before(blank + 2)) &&
                             place.before(blank + 3) == ' ';
    const std::size_t back = has_initial ? blank + 3 : blank;
    const std::string_view given = place.letters_before(back);
    return has_initial ? is_name(given) : find(RULERS, given) != nullptr;
}

// "Queen Elizabeth II"
bool has_royal_title(const Place& place, std::string_view name) {
    return find(ROYAL_TITLES, place.word_before(1 + name.size())) != nullptr;
}

// After a ruler's name "I" is also the one who speaks: "Henry I am".
bool may_be_speaker(const Place& place, std::string_view name) {
    if (place.peek(1) != ' ' || has_royal_title(place, name)) return false;
    return find(SPEAKER_VERBS, place.letters(2)) != nullptr;
}

enum class Counting { none, ordinal, cardinal };

Counting counting_after(const Place& place, std::string_view numeral) {
    if (place.before() != ' ') return Counting::none;
    const std::string_view before = place.word_before();
    if (find(RULERS, before) != nullptr || (is_name(before) && has_royal_title(place, before))) {
        const bool is_speaker = numeral == "I" && may_be_speaker(place, before);
        return is_speaker ? Counting::none : Counting::ordinal;
    }
    const bool has_stop = place.before(2) == '.';  // "Vol. IV"
    const std::string_view counted = has_stop ? place.letters_before(2) : before;
    const Row* title = has_stop ? find(TITLES, counted) : nullptr;
    const bool is_counted = has_stop ? title != nullptr && title->kind == Kind::before_number
                                     : find(COUNTED_BY_ROMAN, counted) != nullptr;
    if (is_counted)
        return is_lower(counted[0]) && numeral == "I" ? Counting::none : Counting::cardinal;
    constexpr std::size_t SHORTEST = 4;  // "The II Corps"
    const bool is_numbered_name =
        is_name(before) && before.size() >= SHORTEST && is_plain_numeral(numeral);
    if (!is_numbered_name) return Counting::none;
    return is_person(place, before) ? Counting::ordinal : Counting::cardinal;
}

}  // namespace

int value_of_roman(std::string_view numeral) {
    int value = 0;
    constexpr std::size_t LONGEST = 9;
    if (numeral.size() > LONGEST) return 0;
    for (std::size_t i = 0; i < numeral.size(); ++i) {
        const int here = value_of_letter(numeral[i]);
        const int next = i + 1 < numeral.size() ? value_of_letter(numeral[i + 1]) : 0;
        if (here == 0) return 0;
        value += here < next ? -here : here;
    }
    return roman_of(value) == numeral ? value : 0;
}

void read_roman(const Place& place, Found& found) {
    const std::string_view numeral = place.letters();
    if (numeral == "WWI" || numeral == "WWII") {
        found.words = numeral.size() == 3 ? "World War one" : "World War two";
        found.length = numeral.size();
        return;
    }
    if (value_of_letter(place.peek()) == 0) return;
    const int value = value_of_roman(numeral);
    if (value == 0 || place.letter(numeral.size()) > 0) return;
    std::size_t end = numeral.size();
    const std::size_t mark = place.apostrophe(end);
    const bool is_genitive =
        mark > 0 && place.peek(end + mark) == 's' && !place.is_joined(end + mark + 1);
    if (mark > 0 && !is_genitive) return;
    const Counting counting = counting_after(place, numeral);
    if (counting == Counting::none) return;
    if (counting == Counting::ordinal) {
        say("the", found.words);
        say_ordinal(std::to_string(value), found.words);
    } else {
        say_cardinal(std::to_string(value), found.words);
    }
    if (is_genitive) {
        found.words += 's';
        end += mark + 1;
    }
    found.length = end;
}

}  // namespace kavi::everyday
