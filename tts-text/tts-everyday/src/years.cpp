// Years, decades and ranges of years.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "nineties" for "90".
void say_tens(std::string_view tens, std::string& out) {
    if (tens == "00") return say("hundreds", out);
    if (tens == "10") return say("tens", out);
    say_cardinal(tens, out);
    out.replace(out.size() - 1, 1, "ies");
}

// The digits of the decade at offset `ahead`, "1990s", "90s" or "1990's". Returns its length, 0 if
// none.
std::size_t decade_at(const Cursor& cursor, std::size_t ahead, std::string_view& digits) {
    digits = cursor.digits(ahead);
    if ((digits.size() != 2 && digits.size() != 4) || digits.back() != '0') return 0;
    if (digits == "1000") return 0;  // "1000s of"
    const std::size_t end = ahead + digits.size();
    const std::size_t s = end + (cursor.peek(end) == '\'' ? 1 : 0);
    return cursor.peek(s) == 's' && !cursor.is_joined(s + 1) ? s + 1 - ahead : 0;
}

void say_decade(std::string_view digits, std::string& out) {
    if (digits == "2000") return say("two thousands", out);
    if (digits.size() == 4) say_cardinal(digits.substr(0, 2), out);
    say_tens(digits.substr(digits.size() - 2), out);
}

// "the class of '09"; "'09'" is quoted
void read_short_year(const Cursor& cursor, std::size_t mark, Found& found) {
    const std::string_view digits = cursor.digits(mark);
    const std::size_t end = mark + digits.size();
    const bool is_one = digits.size() == 2 && cursor.before() == ' ' && !cursor.is_joined(end) &&
                        cursor.apostrophe(end) == 0;
    if (!is_one) return;
    if (digits[0] == '0') say("oh", found.words);
    say_cardinal(digits, found.words);
    found.length = end;
}

// A decade, or two of them: "1980s-90s".
bool read_decade(const Cursor& cursor, std::size_t begin, Found& found) {
    std::string_view digits;
    const std::size_t length = decade_at(cursor, begin, digits);
    if (length == 0) return false;
    say_decade(digits, found.words);
    found.length = begin + length;
    if (digits.size() != 4 || cursor.before() == '-') return true;
    const std::size_t dash = cursor.dash(found.length);
    const std::size_t last = dash > 0 ? decade_at(cursor, found.length + dash, digits) : 0;
    if (last == 0) return true;
    say("to", found.words);
    say_decade(digits, found.words);
    found.length += dash + last;
    return true;
}

// "the 2024/25 season", "1999/2000"
bool read_two_years(const Cursor& cursor, std::string_view year, Found& found) {
    if (cursor.peek(4) != '/' || !may_be_year(year) || cursor.before() == '/') return false;
    const std::string_view last = cursor.digits(5);
    const std::size_t end = 5 + last.size();
    const int next = tn::value_of(year) + 1;
    const bool is_next = (last.size() == 2 && tn::value_of(last) == next % 100) ||
                         (last.size() == 4 && tn::value_of(last) == next);
    if (!is_next || cursor.is_joined(end) || cursor.peek(end) == '/') return false;
    say_year(year, found.words);
    last.size() == 2 ? say_cardinal(last, found.words) : say_year(last, found.words);
    found.length = end;
    return true;
}

// "2010-2015", "1914–18".
bool read_range(const Cursor& cursor, std::string_view year, Found& found) {
    const std::size_t dash = cursor.dash(year.size());
    if (dash == 0 || !may_be_year(year)) return false;
    const std::string_view last = cursor.digits(year.size() + dash);
    const bool is_short = last.size() == 2 && last > year.substr(2);
    const bool is_long = may_be_year(last) && last >= year;
    if (!is_short && dash == 1 && is_value(last, 1, 12) && last.size() == 2 &&
        !cursor.is_joined(7) && cursor.peek(7) != '-') {  // "2015-10"
        say(month_word(tn::value_of(last)), found.words);
        say_year(year, found.words);
        found.length = 7;
        return true;
    }
    if ((!is_short && !is_long) || cursor.is_joined(year.size() + dash + last.size())) return false;
    say_year(year, found.words);
    say("to", found.words);
    is_short ? say_cardinal(last, found.words) : say_year(last, found.words);
    found.length = year.size() + dash + last.size();
    return true;
}

// "1984 votes", but "in 1984 votes were cast"
bool is_count(const Cursor& cursor) {
    if (cursor.peek(4) != ' ' || find(COUNTED_NOUNS, cursor.letters(5)) == nullptr) return false;
    const std::string_view before = cursor.word_before();
    return before != "in" && before != "In" && before != "since" && before != "Since";
}

// "c. 1500", "ca. 1731"
bool is_after_circa(const Cursor& cursor) {
    if (cursor.before() != ' ' || cursor.before(2) != '.') return false;
    const std::string_view before = cursor.letters_before(2);
    return before == "c" || before == "ca";
}

}  // namespace

// Four digits of the years 1000 to 2099.
bool may_be_year(std::string_view digits) {
    return digits.size() == 4 && (digits[0] == '1' || digits.substr(0, 2) == "20");
}

bool is_value(std::string_view digits, int least, int most) {
    if (digits.empty() || digits.size() > 2) return false;
    const int value = tn::value_of(digits);
    return value >= least && value <= most;
}

void read_year(const Cursor& cursor, Found& found) {
    if (const std::size_t mark = cursor.apostrophe(0); mark > 0) {
        if (!read_decade(cursor, mark, found)) read_short_year(cursor, mark, found);
        return;
    }
    const std::string_view digits = cursor.digits();
    if (read_decade(cursor, 0, found) || read_range(cursor, digits, found) ||
        read_two_years(cursor, digits, found))
        return;
    if (!may_be_year(digits) || cursor.letter(4) > 0 || cursor.peek(4) == '%') return;
    if (is_digit(cursor.peek(5)) && cursor.peek(4) != ' ') return;  // part of another number
    if (is_count(cursor)) return;
    const bool is_era = cursor.starts_with(" BC", 4) || cursor.starts_with(" AD", 4);
    const bool is_recent = digits[1] == '9' || digits[0] == '2';
    const bool stands_alone = is_recent || (cursor.peek(4) != ' ' && digits[1] != '0');
    const bool is_year = is_era || stands_alone || is_after_circa(cursor) ||
                         find(BEFORE_YEAR, cursor.word_before()) != nullptr;
    if (!is_year) return;
    const std::size_t mark = cursor.apostrophe(4);
    const bool is_genitive =
        mark > 0 && cursor.peek(4 + mark) == 's' && !cursor.is_joined(5 + mark);
    if (is_genitive && digits[3] == '0') return;  // "1000's of"; a decade is read before
    say_year(digits, found.words);
    found.length = 4;
    if (!is_genitive) return;
    found.words += 's';
    found.length += mark + 1;
}

}  // namespace kavi::everyday
