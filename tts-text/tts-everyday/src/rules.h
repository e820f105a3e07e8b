// The rules of everyday English, in one or a few files for each class.
#ifndef KAVI_EVERYDAY_RULES_H
#define KAVI_EVERYDAY_RULES_H

#include <string>

#include "spoken_numbers.h"

namespace kavi::everyday {

// What a rule has read: the length of the text and the words for it; without words it is silent.
struct Found {
    std::size_t length = 0;  // 0: nothing
    std::string words;

    // The range of a unit, a currency, a month or a title in the text, and of its word in the
    // words: a user may have another word for it.
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

// Each reads what begins at the cursor: a word, a number or a mark. `found` is empty before. Where
// two rules could read the same, the order of RULES in dispatch.cpp decides. A rule that met the
// bound of what it may read is ignored.
using Rule = void (*)(const Cursor& cursor, Found& found);

void read_title(const Cursor& cursor, Found& found);        // titles.cpp
void read_bare_title(const Cursor& cursor, Found& found);   // the same without a full stop
void read_capitals(const Cursor& cursor, Found& found);     // capitals.cpp
void read_state(const Cursor& cursor, Found& found);        // states.cpp
void read_scripture(const Cursor& cursor, Found& found);    // scripture.cpp
void read_contraction(const Cursor& cursor, Found& found);  // contractions.cpp
void read_currency(const Cursor& cursor, Found& found);     // currencies.cpp
void read_amount_after(const Cursor& cursor,
                       Found& found);                // the same, its symbol after the number
void read_unit(const Cursor& cursor, Found& found);  // units.cpp
void read_rate(const Cursor& cursor, Found& found);
void read_year(const Cursor& cursor, Found& found);   // years.cpp
void read_month(const Cursor& cursor, Found& found);  // dates.cpp, from the month on
void read_date(const Cursor& cursor, Found& found);   // from a number on
void read_american_date(const Cursor& cursor, Found& found);
void read_time(const Cursor& cursor, Found& found);       // times.cpp
void read_telephone(const Cursor& cursor, Found& found);  // addresses.cpp
void read_address(const Cursor& cursor, Found& found);
void read_roman(const Cursor& cursor, Found& found);    // roman.cpp
void read_version(const Cursor& cursor, Found& found);  // codes.cpp
void read_resolution(const Cursor& cursor, Found& found);
void read_numbered(const Cursor& cursor, Found& found);
void read_long_code(const Cursor& cursor, Found& found);
void read_plural_number(const Cursor& cursor, Found& found);
void read_code(const Cursor& cursor, Found& found);
void read_number(const Cursor& cursor, Found& found);  // numbers.cpp
void read_point(const Cursor& cursor, Found& found);
void read_sign(const Cursor& cursor, Found& found);
void read_letters(const Cursor& cursor, Found& found);  // letters.cpp
void read_typography(const Cursor& cursor, Found& found);
void read_shield(const Cursor& cursor, Found& found);  // shields.cpp
void read_mark(const Cursor& cursor, Found& found);    // marks.cpp
void read_named_mark(const Cursor& cursor, Found& found);
void read_slashed_words(const Cursor& cursor, Found& found);

// Whether the first word of a row of TITLES may have no full stop after it: "Mr", "et al".
constexpr bool is_bare_title(const Row& row) {
    const std::size_t end = row.written().find_first_of(" .");
    if (end != std::string_view::npos) return row.written()[end] == ' ';
    return row.kind == Kind::never || row.kind == Kind::before_date || row.kind == Kind::after ||
           row.kind == Kind::both || row.kind == Kind::anywhere;
}

// Appends "per" and the unit after a slash at offset `ahead`. Returns their length, 0 if none;
// units.cpp.
std::size_t say_per(const Cursor& cursor, std::size_t ahead, std::string& out);

// Takes the unit after a fraction that has been read, if one follows; `is_one`: it is less than
// one.
void read_unit_after(const Cursor& cursor, bool is_one, Found& found);  // units.cpp

// Reads a point of the compass in an address or a direction; compass.cpp. The first needs a full
// stop, the second has none.
bool read_compass_point(const Cursor& cursor, Found& found);
bool read_bare_compass_point(const Cursor& cursor, Found& found);
// Says one after a blank at offset `ahead`. Returns its length with the blank, 0 if none.
std::size_t say_compass_after(const Cursor& cursor, std::size_t ahead, std::string& out);

// Whether a street's name is at `ahead`: "Oak Ln", "N. 22nd St"; streets.cpp.
bool is_street(const Cursor& cursor, std::size_t ahead);
// Whether a street's name may end with a word: "Ln".
bool is_street_word(std::string_view word);

// Takes the inches after a fraction: "3/4" thick"; primes.cpp.
bool read_inches_after(const Cursor& cursor, Found& found);

// Reads feet and inches, or an angle, by the primes after the number at the cursor; primes.cpp.
bool read_primes(const Cursor& cursor, const Number& number, Found& found);

// Takes "'s" after what has been read, as an "s" of its words: "Corp.'s", "the U.S.'s"; titles.cpp.
void take_genitive(const Cursor& cursor, Found& found);

// Reads months in a range, and "Jan" as a name where it is no month, as small letters: the engine
// takes "Jan" for one. `name` is the word at the cursor; dates.cpp.
bool read_month_name(const Cursor& cursor, std::string_view name, Found& found);

// Appends the time of an ISO date at offset `ahead`. Returns its length, 0 if none; times.cpp.
std::size_t say_iso_time(const Cursor& cursor, std::size_t ahead, std::string& out);

// Whether digits are a year from 1000 to 2099, or one or two of a value in a range; years.cpp.
bool may_be_year(std::string_view digits);
bool is_value(std::string_view digits, int least, int most);

// The length of the dash of a range at `ahead`, with a blank on both sides or on none; 0 if none;
// numbers.cpp.
std::size_t range_dash(const Cursor& cursor, std::size_t ahead);

// The length of an ordinal number in digits at `ahead`, "22nd"; 0 if none; numbers.cpp.
std::size_t ordinal_length(const Cursor& cursor, std::size_t ahead);

// Reads the sign of a row at the cursor, unless it is a letter of a word; numbers.cpp.
void say_sign(const Cursor& cursor, const Row& sign, Found& found);

// The value of a Roman numeral in its usual spelling, 0 for any other text; roman.cpp.
int value_of_roman(std::string_view numeral);
// The same in small letters, of two and more: "xi"; below 40.
int value_of_small_roman(std::string_view numeral);

// Whether a word links two of a kind: "to", "and"; roman.cpp.
bool is_link(std::string_view word);

// Whether the last of some words ends like one of the engine's abbreviations: "gift", "ft.".
bool ends_like_abbreviation(std::string_view words);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_RULES_H
