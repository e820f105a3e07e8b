// Numbers as words with single blanks, after what the text holds.
#ifndef KAVI_EVERYDAY_SPOKEN_NUMBERS_H
#define KAVI_EVERYDAY_SPOKEN_NUMBERS_H

#include <string>
#include <string_view>

#include "cursor.h"

namespace kavi::everyday {

void say(std::string_view words, std::string& out);

// A number of up to twelve digits, more digit by digit.
void say_cardinal(std::string_view digits, std::string& out);
void say_ordinal(std::string_view digits, std::string& out);
void say_digits(std::string_view digits, std::string& out);
// Of the name of a thing: "seven forty seven", "one oh one", "four hundred", "fourteen ten"; more
// than four digits, and what begins with a zero, one by one.
void say_in_pairs(std::string_view digits, std::string& out);

// Of four digits: "nineteen ninety nine", "two thousand five".
void say_year(std::string_view year, std::string& out);

// "three point one four"; `fraction` may be empty.
void say_decimal(std::string_view whole, std::string_view fraction, std::string& out);

// A number as it is written: groups of three with commas, "10 000" or "1.000.000", and a decimal
// point.
struct Number {
    std::string_view whole;  // with what parts its groups
    std::string_view fraction;
    std::size_t length = 0;  // as written; 0 for none

    // Of `whole`.
    std::string digits() const;
    bool is_one() const { return whole == "1" && fraction.empty(); }
    void say(std::string& out) const { say_decimal(digits(), fraction, out); }
};
Number number_at(const Cursor& cursor, std::size_t ahead);

// The number of a month's name or abbreviation, letters of any case, from 1; 0 for none, and for
// what is another word in small letters: "may", "march". Its name, from 1.
int month_number(std::string_view name);
const char* month_word(int number);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_SPOKEN_NUMBERS_H
