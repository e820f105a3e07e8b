// The rules of everyday English, a file for each class.
#ifndef KAVI_EVERYDAY_RULES_H
#define KAVI_EVERYDAY_RULES_H

#include <string>

#include "spoken_numbers.h"

namespace kavi::everyday {

// What a rule has found: how much of the text, and the words for it.
struct Found {
    std::size_t length = 0;  // 0: nothing
    std::string words;

    // A unit, a currency, a month or a title in it: where it is written, from the place, and where
    // its word is in the words. A user may have another word for it.
    struct Name {
        std::size_t at = 0;
        std::size_t length = 0;  // 0: none
        std::size_t word_at = 0;
        std::size_t word_length = 0;
    } name;

    void say_name(std::size_t at, std::size_t name_length, std::string_view word) {
        say(word, words);
        name = {at, name_length, words.size() - word.size(), word.size()};
    }
};

// Each looks at what begins at a place where a word, a number or a mark begins; `found` is empty
// before. Where two rules could read the same, the order in everyday.cpp decides. What a rule found
// counts for nothing when it has met the bound of what it can read.
using Rule = void (*)(const Place& place, Found& found);

void read_title(const Place& place, Found& found);         // titles.cpp
void read_contraction(const Place& place, Found& found);   // contractions.cpp
void read_currency(const Place& place, Found& found);      // currencies.cpp
void read_amount_after(const Place& place, Found& found);  // the same, its symbol after the number
void read_unit(const Place& place, Found& found);          // units.cpp
void read_year(const Place& place, Found& found);          // years.cpp
void read_date(const Place& place, Found& found);
void read_american_date(const Place& place, Found& found);
void read_time(const Place& place, Found& found);       // times.cpp
void read_telephone(const Place& place, Found& found);  // addresses.cpp
void read_address(const Place& place, Found& found);
void read_roman(const Place& place, Found& found);   // roman.cpp
void read_number(const Place& place, Found& found);  // numbers.cpp
void read_sign(const Place& place, Found& found);
void read_code(const Place& place, Found& found);
void read_letters(const Place& place, Found& found);  // letters.cpp
void read_typography(const Place& place, Found& found);
void read_shield(const Place& place, Found& found);  // shields.cpp

// Whether the last of some words ends like one of the engine's abbreviations: "gift", "ft.".
bool ends_like_abbreviation(std::string_view words);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_RULES_H
