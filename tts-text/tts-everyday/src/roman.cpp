// Roman numerals after names of rulers, after what is counted by them, and after other names. A "C"
// or an "L" alone is a letter: "Appendix C".

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
        case 'D': return 500;
        case 'M': return 1000;
        default: return 0;
    }
}

// Below 4000.
std::string roman_of(int value) {
    constexpr std::pair<int, const char*> STEPS[] = {
        {1000, "M"}, {900, "CM"}, {500, "D"}, {400, "CD"}, {100, "C"}, {90, "XC"}, {50, "L"},
        {40, "XL"},  {10, "X"},   {9, "IX"},  {5, "V"},    {4, "IV"},  {1, "I"},
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

// How far before the cursor the first of several numerals begins: "I and " before "II", "I, II, and
// " before "III".
std::size_t numerals_before(const Cursor& cursor) {
    constexpr std::size_t MOST = 4;
    std::size_t back = 0;
    for (std::size_t i = 0; i < MOST && cursor.before(back + 1) == ' '; ++i) {
        std::size_t end = back + 1;
        const std::string_view link = cursor.letters_before(end);
        if (is_link(link)) end += link.size() + 1;
        if (cursor.before(end + 1) == ',') ++end;
        if (end == back + 1) break;
        const std::string_view numeral = cursor.letters_before(end);
        if (value_of_roman(numeral) == 0) break;
        back = end + numeral.size();
    }
    return back;
}

// "I and II", "I, II": the first is a numeral too.
bool has_numeral_after(const Cursor& cursor) {
    std::size_t at = cursor.peek(1) == ',' ? 2 : 1;
    if (cursor.peek(at) != ' ') return false;
    const std::string_view link = cursor.letters(at + 1);
    if (is_link(link)) at += 1 + link.size();
    if (at == 1 || cursor.peek(at) != ' ') return false;
    const std::string_view numeral = cursor.letters(at + 1);
    return numeral != "I" && value_of_roman(numeral) > 0 &&
           !cursor.is_joined(at + 1 + numeral.size());
}

// "Barrera III" after "Joseph S. ", "Joseph ": a person has a given name, and may have an initial.
bool is_person(const Cursor& cursor, std::size_t back, std::string_view name) {
    const std::size_t blank = back + 1 + name.size() + 1;
    if (cursor.before(blank) != ' ') return false;
    const bool has_initial = cursor.before(blank + 1) == '.' &&
                             is_upper(cursor.before(blank + 2)) && cursor.before(blank + 3) == ' ';
    const std::string_view given = cursor.letters_before(has_initial ? blank + 3 : blank);
    return has_initial ? is_name(given) : find(RULERS, given) != nullptr;
}

// "Queen Elizabeth II"
bool has_royal_title(const Cursor& cursor, std::size_t back, std::string_view name) {
    return find(ROYAL_TITLES, cursor.word_before(back + 1 + name.size())) != nullptr;
}

// After a ruler's name "I" is also the one who speaks: "Henry I am".
bool may_be_speaker(const Cursor& cursor, std::string_view name) {
    if (cursor.peek(1) != ' ' || has_royal_title(cursor, 0, name)) return false;
    return find(SPEAKER_VERBS, cursor.letters(2)) != nullptr;
}

// "Part", "Parts" with `kind` after, "century" before
bool is_counted_by_roman(std::string_view word, Kind kind) {
    const Row* row = find(COUNTED_BY_ROMAN, word);
    if (row == nullptr && !word.empty() && word.back() == 's')
        row = find(COUNTED_BY_ROMAN, word.substr(0, word.size() - 1));
    return row != nullptr && row->kind == kind;
}

enum class Counting { none, ordinal, cardinal };

Counting counting_of(const Cursor& cursor, std::string_view numeral) {
    const bool has_noun = cursor.peek(numeral.size()) == ' ' &&
                          is_counted_by_roman(cursor.letters(numeral.size() + 1), Kind::before);
    if (has_noun) return Counting::ordinal;
    const std::size_t back = numeral != "I" ? numerals_before(cursor) : 0;
    if (cursor.before(back + 1) != ' ') return Counting::none;
    const std::string_view before = cursor.word_before(back);
    if (find(RULERS, before) != nullptr ||
        (is_name(before) && has_royal_title(cursor, back, before))) {
        const bool is_speaker = numeral == "I" && may_be_speaker(cursor, before);
        return is_speaker ? Counting::none : Counting::ordinal;
    }
    const bool has_stop = cursor.before(back + 2) == '.';  // "Vol. IV"
    const std::string_view counted = has_stop ? cursor.letters_before(back + 2) : before;
    const Row* title = has_stop ? find(TITLES, counted) : nullptr;
    const bool is_counted = has_stop ? title != nullptr && (title->kind == Kind::before_number ||
                                                            title->kind == Kind::both)
                                     : is_counted_by_roman(counted, Kind::after);
    if (is_counted) {
        const bool may_be_pronoun = is_lower(counted[0]) || counted == "No";  // "No. I said"
        const bool is_speaker = may_be_pronoun && numeral == "I" && !has_numeral_after(cursor);
        return is_speaker ? Counting::none : Counting::cardinal;
    }
    constexpr std::size_t SHORTEST = 4;  // "The II Corps"
    const bool is_numbered_name =
        is_name(before) && before.size() >= SHORTEST && is_plain_numeral(numeral);
    if (!is_numbered_name) return Counting::none;
    return is_person(cursor, back, before) ? Counting::ordinal : Counting::cardinal;
}

// "scene ii", "pp. xi"
void read_small_roman(const Cursor& cursor, Found& found) {
    const std::string_view numeral = cursor.letters();
    const int value = value_of_small_roman(numeral);
    if (value == 0 || cursor.is_joined(numeral.size()) || cursor.apostrophe(numeral.size()) > 0)
        return;
    if (counting_of(cursor, numeral) != Counting::cardinal) return;
    say_cardinal(std::to_string(value), found.words);
    found.length = numeral.size();
}

}  // namespace

bool is_link(std::string_view word) {
    return word == "and" || word == "or" || word == "to" || word == "through";
}

int value_of_small_roman(std::string_view numeral) {
    std::string capitals;
    for (const char c : numeral) {
        if (c != 'i' && c != 'v' && c != 'x') return 0;
        capitals += static_cast<char>(c - 'a' + 'A');
    }
    return numeral.size() > 1 ? value_of_roman(capitals) : 0;
}

int value_of_roman(std::string_view numeral) {
    int value = 0;
    constexpr std::size_t LONGEST = 15;
    if (numeral.size() > LONGEST) return 0;
    for (std::size_t i = 0; i < numeral.size(); ++i) {
        const int here = value_of_letter(numeral[i]);
        const int next = i + 1 < numeral.size() ? value_of_letter(numeral[i + 1]) : 0;
        if (here == 0) return 0;
        value += here < next ? -here : here;
    }
    return roman_of(value) == numeral ? value : 0;
}

void read_roman(const Cursor& cursor, Found& found) {
    if (is_lower(cursor.peek())) return read_small_roman(cursor, found);
    const std::string_view numeral = cursor.letters();
    if (numeral == "WWI" || numeral == "WWII") {
        found.words = numeral.size() == 3 ? "World War one" : "World War two";
        found.length = numeral.size();
        return;
    }
    if (value_of_letter(cursor.peek()) == 0 || numeral == "C" || numeral == "D" || numeral == "M")
        return;
    const int value = value_of_roman(numeral);
    if (value == 0 || cursor.letter(numeral.size()) > 0) return;
    std::size_t end = numeral.size();
    constexpr int FIRST_YEAR = 1000;
    if (value >= FIRST_YEAR && end > 3) {  // "MCMLXXXIV"
        say_year(std::to_string(value), found.words);
        found.length = end;
        return;
    }
    const std::size_t mark = cursor.apostrophe(end);
    const bool is_genitive =
        mark > 0 && cursor.peek(end + mark) == 's' && !cursor.is_joined(end + mark + 1);
    if (mark > 0 && !is_genitive) return;
    const Counting counting = counting_of(cursor, numeral);
    if (counting == Counting::none) return;
    if (counting == Counting::ordinal) {
        if (find_lower(DETERMINERS, cursor.word_before()) == nullptr) say("the", found.words);
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
