// Numeric dates, years, and days beside a month. The day comes first: «12/25/2020» is the twelfth
// of a month 25 that has no name.

#include "../numbers/number_words.h"
#include "months.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

namespace {

bool is_part_of_date(const Section* section) {
    return has_digits_only(section) || is_month(section);
}

// A month or, for what names none, the text as it stands.
void append_month(const Section* section, Reading& reading) {
    const std::string_view text = section->sz_char;
    const char* name = month_name(text);
    if (name == nullptr) {
        reading.append_as_written(text);
        return;
    }
    reading.append(name);
    if (is_digit(text[0])) reading.note_digits(text);
}

}  // namespace

bool data_decide(Section* day) {
    const Section* separator = ahead(day, 1);
    return (is_mark(separator, '/') || is_mark(separator, '-')) && is_part_of_date(ahead(day, 2)) &&
           is_mark(ahead(day, 3), '/') && is_part_of_date(ahead(day, 4));
}

Section* data_number(Section* day, Reading& reading) {
    const Section* month = day->m_pnext->m_pnext;
    Section* year = month->m_pnext->m_pnext;
    reading.append(" the ");
    append_ordinal(day->sz_char, reading);
    reading.append(" of ");
    append_month(month, reading);
    reading.append(" ");
    if (year->m_nmark == NUMBERSYMBOL) {
        year_read(year->sz_char, reading);
    } else {
        append_month(year, reading);
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

bool is_year(int value) {
    constexpr int FIRST_YEAR = 1100;
    constexpr int LAST_YEAR = 9999;
    return value >= FIRST_YEAR && value <= LAST_YEAR;
}

bool is_day_of_month(Section* number) {
    const Section* before = number->m_pprevious;
    return is_month(ahead(number, 2)) || is_month(before) ||
           (before != nullptr && is_month(before->m_pprevious));
}

}  // namespace kavi::tn
