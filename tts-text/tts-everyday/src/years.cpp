// Years, decades, ranges of years, and dates.

#include "rules.h"
#include "spoken_numbers.h"

namespace kavi::everyday {

namespace {

// Before these, four digits are a year.
constexpr std::string_view BEFORE_YEAR[] = {
    "in",     "In",     "since",  "Since",  "until", "by",    "By",  "from",   "From",   "of",
    "after",  "After",  "before", "Before", "year",  "circa", "to",  "and",    "during", "spring",
    "summer", "autumn", "fall",   "winter", "early", "late",  "mid", "around", "Around", "about"};

bool is_year(std::string_view digits) {
    return digits.size() == 4 && (digits[0] == '1' || digits.substr(0, 2) == "20");
}

bool is_value(std::string_view digits, int least, int most) {
    if (digits.empty() || digits.size() > 2) return false;
    int value = 0;
    for (const char c : digits) value = 10 * value + (c - '0');
    return value >= least && value <= most;
}

int value_of(std::string_view digits) {
    int value = 0;
    for (const char c : digits) value = 10 * value + (c - '0');
    return value;
}

// "nineties" for "90".
void say_decade(std::string_view tens, std::string& out) {
    if (tens == "00") return say("hundreds", out);
    if (tens == "10") return say("tens", out);
    say_cardinal(tens, out);
    out.replace(out.size() - 1, 1, "ies");
}

// "1990s", "90s", "'90s" after the apostrophe.
bool read_decade(const Place& place, std::size_t begin, Found& found) {
    const std::string_view digits = place.digits(begin);
    if (digits.size() != 2 && digits.size() != 4) return false;
    std::size_t end = begin + digits.size();
    if (place.peek(end) == '\'') ++end;
    if (digits.back() != '0' || place.peek(end) != 's' || is_of_word(place.peek(end + 1)))
        return false;
    if (digits == "2000") {
        say("two thousands", found.words);
    } else {
        if (digits.size() == 4) say_cardinal(digits.substr(0, 2), found.words);
        say_decade(digits.substr(digits.size() - 2), found.words);
    }
    found.length = end + 1;
    // "1980s-90s"
    Found last;
    const std::size_t dash = place.dash(end + 1);
    const Place after = {place.text, place.at + end + 1 + dash};
    if (dash > 0 && is_digit(after.peek()) && digits.size() == 4 && read_decade(after, 0, last)) {
        say("to", found.words);
        say(last.words, found.words);
        found.length += dash + last.length;
    }
    return true;
}

void say_day_first(std::string_view day, int month, std::string_view year, std::string& out) {
    say("the", out);
    say_ordinal(day, out);
    say("of", out);
    say(month_word(month), out);
    if (!year.empty()) say_year(year, out);
}

void say_month_first(int month, std::string_view day, std::string_view year, std::string& out) {
    say(month_word(month), out);
    say_ordinal(day, out);
    if (!year.empty()) say_year(year, out);
}

std::string full_year(std::string_view year) {
    if (year.size() != 2) return std::string(year);
    return (year[0] < '5' ? "20" : "19") + std::string(year);
}

// "3/1/2020" or "3.1.2020", in the order of `month_first`.
void read_numeric_date(const Place& place, bool month_first, Found& found) {
    const std::string_view first = place.digits();
    const char mark = place.peek(first.size());
    if (mark != '/' && mark != '.') return;
    const std::string_view second = place.digits(first.size() + 1);
    const std::size_t second_end = first.size() + 1 + second.size();
    if (place.peek(second_end) != mark) return;
    const std::string_view year = place.digits(second_end + 1);
    const bool is_whole = year.size() == 4 || (year.size() == 2 && mark == '/');
    const std::string_view day = month_first ? second : first;
    const std::string_view month = month_first ? first : second;
    if (!is_whole || !is_value(day, 1, 31)) return;
    if (!is_value(month, 1, 12)) {
        // Only the other order makes a date of it.
        if (!is_value(month, 13, 31) || !is_value(day, 1, 12)) return;
        say_month_first(value_of(day), month, full_year(year), found.words);
    } else if (month_first) {
        say_month_first(value_of(month), day, full_year(year), found.words);
    } else {
        say_day_first(day, value_of(month), full_year(year), found.words);
    }
    found.length = second_end + 1 + year.size();
}

// "2020-03-01".
bool read_iso_date(const Place& place, Found& found) {
    const std::string_view year = place.digits();
    if (year.size() != 4 || place.peek(4) != '-') return false;
    const std::string_view month = place.digits(5);
    if (month.size() != 2 || place.peek(7) != '-' || !is_value(month, 1, 12)) return false;
    const std::string_view day = place.digits(8);
    if (day.size() != 2 || !is_value(day, 1, 31)) return false;
    say_month_first(value_of(month), day, year, found.words);
    found.length = 10;
    return true;
}

std::size_t ordinal_suffix(const Place& place, std::size_t ahead) {
    const std::string_view letters = place.letters(ahead);
    return letters == "st" || letters == "nd" || letters == "rd" || letters == "th" ? 2 : 0;
}

// A year so far on, past a comma and a blank; its end.
std::string_view year_after(const Place& place, std::size_t ahead, std::size_t& end) {
    std::size_t begin = ahead;
    if (place.peek(begin) == ',') ++begin;
    if (place.peek(begin) == ' ') ++begin;
    const std::string_view year = place.digits(begin);
    if (begin == ahead || !is_year(year)) {
        end = ahead;
        return {};
    }
    end = begin + year.size();
    return year;
}

// "May 5, 2021", "Jan. 5", "March 2020".
void read_month_first(const Place& place, Found& found) {
    const std::string_view name = place.letters();
    const int month = month_number(name);
    if (month == 0) return;
    std::size_t at = name.size();
    if (place.peek(at) == '.') ++at;
    if (place.peek(at) != ' ') return;
    const std::string_view digits = place.digits(at + 1);
    const std::size_t digits_end = at + 1 + digits.size();
    if (is_year(digits) && !is_of_word(place.peek(digits_end))) {
        say(month_word(month), found.words);
        say_year(digits, found.words);
        found.length = digits_end;
        return;
    }
    const std::size_t suffix = ordinal_suffix(place, digits_end);
    const char after = place.peek(digits_end + suffix);
    if (!is_value(digits, 1, 31) || is_of_word(after) || after == ':' || after == '%') return;
    if (after == '.' && is_digit(place.peek(digits_end + suffix + 1))) return;
    std::size_t end = 0;
    const std::string_view year = year_after(place, digits_end + suffix, end);
    // "May 5-7"
    const std::size_t dash = year.empty() ? place.dash(end) : 0;
    const std::string_view last = dash > 0 ? place.digits(end + dash) : std::string_view();
    if (is_value(last, 1, 31)) {
        say_month_first(month, digits, {}, found.words);
        say("to", found.words);
        say_ordinal(last, found.words);
        std::size_t all = 0;
        const std::string_view range_year = year_after(place, end + dash + last.size(), all);
        if (!range_year.empty()) say_year(range_year, found.words);
        found.length = all;
        return;
    }
    say_month_first(month, digits, year, found.words);
    found.length = end;
}

// "5 May 2021", "21st of June".
void read_day_first(const Place& place, Found& found) {
    const std::string_view day = place.digits();
    std::size_t at = day.size() + ordinal_suffix(place, day.size());
    if (!is_value(day, 1, 31) || place.peek(at) != ' ') return;
    if (place.starts_with(" of ", at)) at += 3;
    const std::string_view name = place.letters(at + 1);
    const int month = month_number(name);
    if (month == 0) return;
    std::size_t end = at + 1 + name.size();
    if (name.size() < 4 && name != "May" && place.peek(end) == '.') ++end;
    const std::string_view year = year_after(place, end, end);
    const bool has_article = place.word_before() == "the" || place.word_before() == "The";
    std::string words;
    say_day_first(day, month, year, words);
    found.words = has_article ? words.substr(4) : words;
    found.length = end;
}

// "2010-2015", "1914–18".
bool read_range(const Place& place, std::string_view year, Found& found) {
    const std::size_t dash = place.dash(year.size());
    if (dash == 0 || !is_year(year)) return false;
    const std::string_view last = place.digits(year.size() + dash);
    const bool is_short = last.size() == 2 && last > year.substr(2);
    if (!is_short && !is_year(last)) return false;
    say_year(year, found.words);
    say("to", found.words);
    is_short ? say_cardinal(last, found.words) : say_year(last, found.words);
    found.length = year.size() + dash + last.size();
    return true;
}

bool is_after_year_word(const Place& place) {
    const std::string_view before = place.word_before();
    for (const std::string_view word : BEFORE_YEAR) {
        if (word == before) return true;
    }
    return false;
}

}  // namespace

void read_year(const Place& place, Found& found) {
    if (place.peek() == '\'' || place.starts_with("\xe2\x80\x99") ||
        place.starts_with("\xe2\x80\x98")) {
        read_decade(place, place.peek() == '\'' ? 1 : 3, found);
        return;
    }
    const std::string_view digits = place.digits();
    if (read_decade(place, 0, found) || read_range(place, digits, found)) return;
    if (!is_year(digits) || is_of_word(place.peek(4)) || place.peek(4) == '%') return;
    if (is_digit(place.peek(5)) && place.peek(4) != ' ') return;  // part of another number
    const bool is_era = place.starts_with(" BC", 4) || place.starts_with(" AD", 4);
    const bool is_recent = digits[1] == '9' || digits[0] == '2';
    const bool stands_alone = is_recent || (place.peek(4) != ' ' && digits[1] != '0');
    if (!is_era && !is_after_year_word(place) && !stands_alone) return;
    say_year(digits, found.words);
    found.length = 4;
}

void read_date(const Place& place, Found& found) {
    if (is_letter(place.peek())) return read_month_first(place, found);
    if (read_iso_date(place, found)) return;
    read_day_first(place, found);
    if (found.length == 0) read_numeric_date(place, false, found);
}

void read_american_date(const Place& place, Found& found) {
    if (is_digit(place.peek())) read_numeric_date(place, true, found);
}

}  // namespace kavi::everyday
