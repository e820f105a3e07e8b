// Numeric dates, years, and days beside a month. The day comes first: in «12/25/2020» the month is
// 25, which has no name and is not read.

#include "../numbers/number_words.h"
#include "months.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

namespace {

bool is_part_of_date(const Token* token) {
    return token->has_digits_only || is_month(token);
}

// Appends the name of a month; the text itself when it is not a month.
void append_month(std::string_view text, Reading& reading) {
    const char* name = month_name(text);
    if (name == nullptr) {
        reading.append_as_written(text);
        return;
    }
    reading.append(name);
    if (is_digit(text[0])) reading.note_digits(text);
}

}  // namespace

bool data_decide(const Token* day) {
    return (is_mark(day + 1, '/') || is_mark(day + 1, '-')) && is_part_of_date(day + 2) &&
           is_mark(day + 3, '/') && is_part_of_date(day + 4);
}

const Token* data_number(const Token* day, Reading& reading) {
    const Token* month = day + 2;
    const Token* year = day + 4;
    reading.append(" the ");
    append_ordinal(day->text(), reading);
    reading.append(" of ");
    append_month(month->text(), reading);
    reading.append(" ");
    if (year->has_digits_only) {
        year_read(year->text(), reading);
    } else {
        append_month(year->text(), reading);
    }
    return year;
}

void year_read(std::string_view digits, Reading& reading) {
    constexpr std::size_t SHORT = 2;
    constexpr std::size_t LONG = 4;
    if (digits.size() != SHORT && digits.size() != LONG) return;
    const std::string_view years = digits.substr(digits.size() - SHORT);
    if (digits.size() == SHORT) {
        reading.append("two thousand ");
    } else {
        const std::string_view century = digits.substr(0, SHORT);
        if (century == "20") {
            reading.append(" two thousand ");
            reading.note_digits(century);
        } else {
            append_cardinal(century, reading);
        }
        if (years[0] == '0' && years[1] != '0') reading.append(" zero ");
    }
    append_cardinal(years, reading);
}

bool is_year(std::string_view digits) {
    constexpr int FIRST_YEAR = 1100;
    constexpr int LAST_YEAR = 9999;
    const int value = value_of(digits);
    return value >= FIRST_YEAR && value <= LAST_YEAR;
}

bool is_day_of_month(const Token* number) {
    return (is_section(number + 1) && is_month(number + 2)) || is_month(number - 1) ||
           is_month(number - 2);
}

}  // namespace kavi::tn
