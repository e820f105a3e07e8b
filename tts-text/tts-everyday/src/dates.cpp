// Dates, by the names of months and by numbers.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Of a date, as it is written: the name of the month from `at`, none of it in a date of numbers.
struct Month {
    int number;
    std::size_t at = 0;
    std::size_t length = 0;

    void say(Found& found) const { found.say_name(at, length, month_word(number)); }
};

// "the", unless it is before the cursor.
void say_article(const Cursor& cursor, Found& found) {
    const std::string_view before = cursor.word_before();
    if (before != "the" && before != "The") say("the", found.words);
}

void say_day_first(const Cursor& cursor, std::string_view day, const Month& month,
                   std::string_view year, Found& found) {
    say_article(cursor, found);
    say_ordinal(day, found.words);
    say("of", found.words);
    month.say(found);
    if (!year.empty()) say_year(year, found.words);
}

void say_month_first(const Month& month, std::string_view day, std::string_view year,
                     Found& found) {
    month.say(found);
    say_ordinal(day, found.words);
    if (!year.empty()) say_year(year, found.words);
}

std::string full_year(std::string_view year) {
    if (year.size() != 2) return std::string(year);
    return (year[0] < '5' ? "20" : "19") + std::string(year);
}

// "3/1/2020" or "3.1.2020", in the order of `month_first`.
void read_numeric_date(const Cursor& cursor, bool month_first, Found& found) {
    const std::string_view first = cursor.digits();
    const char mark = cursor.peek(first.size());
    if (mark != '/' && mark != '.') return;
    const std::string_view second = cursor.digits(first.size() + 1);
    const std::size_t second_end = first.size() + 1 + second.size();
    if (cursor.peek(second_end) != mark) return;
    const std::string_view year = cursor.digits(second_end + 1);
    const bool is_clear = mark == '/' || (second.size() == 2 && is_value(first, 13, 31));
    const bool is_whole = year.size() == 4 || (year.size() == 2 && is_clear);  // "31.12.99"
    const std::string_view day = month_first ? second : first;
    const std::string_view month = month_first ? first : second;
    const std::size_t end = second_end + 1 + year.size();
    const bool goes_on = cursor.is_joined(end) || cursor.peek(end) == '/' ||
                         (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1)));
    if (!is_whole || goes_on) return;
    if (cursor.before() == '/' || !is_value(day, 1, 31)) return;
    if (!is_value(month, 1, 12)) {
        // Only the other order makes a date of it.
        if (!is_value(month, 13, 31) || !is_value(day, 1, 12)) return;
        say_month_first({tn::value_of(day)}, month, full_year(year), found);
    } else if (month_first) {
        say_month_first({tn::value_of(month)}, day, full_year(year), found);
    } else {
        say_day_first(cursor, day, {tn::value_of(month)}, full_year(year), found);
    }
    found.length = end;
}

// "2020-03-01", "2018/11/24".
bool read_iso_date(const Cursor& cursor, Found& found) {
    const std::string_view year = cursor.digits();
    const char mark = cursor.peek(4);
    if (year.size() != 4 || (mark != '-' && mark != '/') || (mark == '/' && cursor.before() == '/'))
        return false;
    const std::string_view month = cursor.digits(5);
    if (month.size() != 2 || cursor.peek(7) != mark || !is_value(month, 1, 12)) return false;
    const std::string_view day = cursor.digits(8);
    if (day.size() != 2 || !is_value(day, 1, 31)) return false;
    const bool has_time = cursor.peek(10) == 'T' && is_digit(cursor.peek(11));
    const bool goes_on = cursor.peek(10) == mark || (cursor.is_joined(10) && !has_time);
    if (goes_on) return false;
    say_month_first({tn::value_of(month)}, day, year, found);
    found.length = 10;
    if (!has_time) return true;
    std::string time;
    if (const std::size_t length = say_iso_time(cursor, 11, time); length > 0) {
        say(time, found.words);
        found.length += 1 + length;
    }
    return true;
}

// "Fri., " is before the cursor.
bool is_after_day_of_week(const Cursor& cursor) {
    std::size_t back = 0;
    while (cursor.before(back + 1) == ' ' || cursor.before(back + 1) == ',' ||
           cursor.before(back + 1) == '.')
        ++back;
    const std::string_view day = cursor.letters_before(back);
    const bool is_whole = day.size() > 5 && day.substr(day.size() - 3) == "day";
    const Row* row = find(TITLES, is_whole ? day.substr(0, 3) : day);
    return row != nullptr && row->kind == Kind::before_date;
}

// Whether two numbers with a slash before `end` are a month and a day by what is around them.
bool is_month_and_day(const Cursor& cursor, std::string_view month, std::string_view day,
                      std::size_t end) {
    if (is_after_day_of_week(cursor)) return true;
    const bool is_above_months = is_value(day, 13, 31);
    const bool has_zero = month.size() == 2 && month[0] == '0';  // "08/19"
    if (has_zero && is_above_months) return true;
    const Row* before = find(BEFORE_DAY, cursor.word_before());
    if (before == nullptr) return false;
    if (before->kind == Kind::may_end)
        return is_above_months && !(cursor.peek(end) == ' ' && is_lower(cursor.peek(end + 1)));
    return is_above_months || before->kind == Kind::anywhere;
}

// "due 3/31", "by 12/25", "Fri. 6/9", "Fri 13/10"; no fraction that is written
bool read_month_and_day(const Cursor& cursor, Found& found) {
    const std::string_view first = cursor.digits();
    if (cursor.peek(first.size()) != '/') return false;
    const std::string_view second = cursor.digits(first.size() + 1);
    const std::size_t end = first.size() + 1 + second.size();
    const bool is_day_first = is_value(first, 13, 31);
    const std::string_view month = is_day_first ? second : first;
    const std::string_view day = is_day_first ? first : second;
    const bool is_date = is_value(month, 1, 12) && is_value(day, 1, 31) &&
                         find(FRACTIONS, cursor.part(0, end)) == nullptr &&
                         is_month_and_day(cursor, month, day, end);
    const bool goes_on = cursor.is_joined(end) || cursor.peek(end) == '/' ||
                         cursor.peek(end) == '-' || cursor.peek(end) == '"' ||
                         cursor.starts_with(" in", end) || cursor.starts_with(" of", end);
    if (!is_date || goes_on) return false;
    if (is_day_first) {
        say_day_first(cursor, day, {tn::value_of(month)}, {}, found);
    } else {
        say_month_first({tn::value_of(month)}, day, {}, found);
    }
    found.length = end;
    return true;
}

std::size_t ordinal_suffix(const Cursor& cursor, std::size_t ahead) {
    const std::string_view letters = cursor.letters(ahead);
    const bool is_small = !letters.empty() && is_lower(letters[0]);
    return is_small && find(ORDINAL_SUFFIXES, letters) != nullptr ? letters.size() : 0;
}

// The year at offset `ahead`, after a comma, a blank or both. `end` is set past it, to `ahead` if
// none.
std::string_view year_after(const Cursor& cursor, std::size_t ahead, std::size_t& end) {
    std::size_t begin = ahead;
    if (cursor.peek(begin) == ',') ++begin;
    if (cursor.peek(begin) == ' ') ++begin;
    const std::string_view year = cursor.digits(begin);
    if (begin == ahead || !may_be_year(year)) {
        end = ahead;
        return {};
    }
    end = begin + year.size();
    return year;
}

// "March 10 miles", "in May 12 people", but "On March 10 people met"
bool is_count_after(const Cursor& cursor, std::size_t ahead) {
    if (cursor.peek(ahead) != ' ' || find(COUNTED_NOUNS, cursor.letters(ahead + 1)) == nullptr)
        return false;
    const std::string before = in_lower_case(cursor.word_before());
    return before == "in" ||
           (find(BEFORE_MONTH, before) == nullptr && find(BEFORE_DAY, before) == nullptr);
}

// What follows a month at offset `ahead`: "5, 2021", "5-7".
void read_days(const Cursor& cursor, const Month& month, std::size_t ahead, Found& found) {
    const std::string_view day = cursor.digits(ahead);
    std::size_t end = ahead + day.size();
    end += ordinal_suffix(cursor, end);
    const char after = cursor.peek(end);
    const bool is_decimal = after == '.' && is_digit(cursor.peek(end + 1));
    if (!is_value(day, 1, 31) || cursor.letter(end) > 0 || after == ':' || after == '%' ||
        is_decimal || is_count_after(cursor, end))
        return;
    say_month_first(month, day, {}, found);
    const std::size_t dash = cursor.dash(end);
    const std::string_view last = dash > 0 ? cursor.digits(end + dash) : std::string_view();
    if (is_value(last, 1, 31)) {
        say("to", found.words);
        say_ordinal(last, found.words);
        end += dash + last.size();
        end += ordinal_suffix(cursor, end);
    }
    if (last.empty() && dash > 0 && month_number(cursor.letters(end + dash)) > 0) {
        say("to", found.words);  // "Dec. 24–Jan. 2"
        found.length = end + dash;
        return;
    }
    const std::string_view year = year_after(cursor, end, end);
    if (!year.empty()) say_year(year, found.words);
    found.length = end;
}

// "14 to 16 July": the first of two days; `ahead` is after the link.
void read_first_of_days(const Cursor& cursor, std::string_view first, std::size_t at,
                        std::size_t ahead, Found& found) {
    const std::string_view last = cursor.digits(ahead + 1);
    const bool has_month = month_number(cursor.letters(ahead + 1 + last.size() + 1)) > 0;
    if (!is_value(last, 1, 31) || !has_month) return;
    say_article(cursor, found);
    say_ordinal(first, found.words);
    found.length = at;
}

// "5 May 2021", "21st of June", and the first day of "14 to 16 July".
void read_day_first(const Cursor& cursor, Found& found) {
    const std::string_view day = cursor.digits();
    std::size_t at = day.size() + ordinal_suffix(cursor, day.size());
    if (!is_value(day, 1, 31) || cursor.peek(at) != ' ') return;
    if (cursor.starts_with(" of ", at)) at += 3;
    const std::string_view name = cursor.letters(at + 1);
    const Month month = {month_number(name), at + 1, name.size()};
    if (is_link(name)) return read_first_of_days(cursor, day, at, at + 1 + name.size(), found);
    if (month.number == 0) return;
    std::size_t end = at + 1 + name.size();
    if (name.size() < 4 && name != "May" && cursor.peek(end) == '.') ++end;
    const std::string_view year = year_after(cursor, end, end);
    say_day_first(cursor, day, month, year, found);
    found.length = end;
}

// "4-Jun-2011", "04-Jun-11"
bool read_dashed_date(const Cursor& cursor, Found& found) {
    const std::string_view day = cursor.digits();
    if (cursor.peek(day.size()) != '-' || !is_value(day, 1, 31)) return false;
    const std::string_view name = cursor.letters(day.size() + 1);
    if (name.empty()) return false;
    const std::size_t dash = day.size() + 1 + name.size();
    const Month month = {month_number(name), day.size() + 1, name.size()};
    const std::string_view year = cursor.digits(dash + 1);
    const std::size_t end = dash + 1 + year.size();
    if (month.number == 0 || cursor.peek(dash) != '-' || cursor.is_joined(end)) return false;
    if (!may_be_year(year) && year.size() != 2) return false;
    say_day_first(cursor, day, month, full_year(year), found);
    found.length = end;
    return true;
}

// "Jan-Mar", "Sept.–Nov."
bool read_months(const Cursor& cursor, std::string_view name, Found& found) {
    constexpr std::size_t LONGEST = 4;  // of an abbreviation
    const std::size_t stop = name.size() + (cursor.peek(name.size()) == '.' ? 1 : 0);
    const std::size_t at = stop + cursor.dash(stop);
    if (at == stop || name.size() > LONGEST) return false;
    const int first = month_number(name);
    const std::string_view last = cursor.letters(at);
    if (first == 0 || month_number(last) == 0) return false;
    say(month_word(first), found.words);
    say("to", found.words);
    say(month_word(month_number(last)), found.words);
    found.length = at + last.size();
    return true;
}

// "Jan Smith", "I saw Jan yesterday"; not "Jan 5", "in Jan", "Jan and Feb"
bool read_given_name(const Cursor& cursor, std::string_view name, Found& found) {
    const std::string_view next = cursor.letters(name.size() + 1);
    if (next.empty() || month_number(next) > 0 || is_digit(cursor.before(2))) return false;
    if (is_link(next) && month_number(cursor.letters(name.size() + 2 + next.size())) > 0)
        return false;
    const std::string before = in_lower_case(cursor.word_before());
    const bool has_surname = is_upper(next[0]) && next.size() > 2;
    const bool is_month = !has_surname && (find(BEFORE_MONTH, before) != nullptr ||
                                           find(ORDINAL_SUFFIXES, before) != nullptr);
    if (is_month) return false;
    found.length = name.size();
    found.words = in_lower_case(name);
    return true;
}

}  // namespace

// "May 5, 2021", "Jan. 5", "March 2020".
void read_month(const Cursor& cursor, Found& found) {
    const std::string_view name = cursor.letters();
    const Month month = {month_number(name), 0, name.size()};
    if (month.number == 0) return;
    std::size_t at = name.size();
    if (cursor.peek(at) == '.') ++at;
    if (cursor.peek(at) != ' ') return;
    const std::string_view year = cursor.digits(at + 1);
    const std::size_t end = at + 1 + year.size();
    if (!may_be_year(year) || cursor.letter(end) > 0)
        return read_days(cursor, month, at + 1, found);
    month.say(found);
    say_year(year, found.words);
    found.length = end;
}

bool read_month_name(const Cursor& cursor, std::string_view name, Found& found) {
    const bool may_be_name = name[0] == 'J' && cursor.peek(name.size()) == ' ';
    if (!may_be_name) return read_months(cursor, name, found);
    return (name == "Jan" || name == "Jun") && read_given_name(cursor, name, found);
}

void read_date(const Cursor& cursor, Found& found) {
    if (read_iso_date(cursor, found) || read_dashed_date(cursor, found)) return;
    if (read_month_and_day(cursor, found)) return;
    read_day_first(cursor, found);
    if (found.length == 0) read_numeric_date(cursor, false, found);
}

void read_american_date(const Cursor& cursor, Found& found) {
    read_numeric_date(cursor, true, found);
}

}  // namespace kavi::everyday
