// Clock times: 10:30, and 10:30:15 or 10:30'15 with their units.

#include "../numbers/number_words.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

namespace {

struct TimeUnit {
    const char* one;
    const char* zero;  // says the number too, since the reading of 0 is blank
    const char* many;
};

constexpr TimeUnit HOURS = {" hour ", " zero hour ", " hours "};
constexpr TimeUnit MINUTES = {" minute ", " zero minute ", " minutes "};
constexpr TimeUnit SECONDS = {" second ", " zero second ", " seconds "};

const char* unit_word(const TimeUnit& unit, int value) {
    if (value == 1) return unit.one;
    return value == 0 ? unit.zero : unit.many;
}

void append_part(const Section* number, const TimeUnit& unit, Reading& reading) {
    append_number(number->sz_char, reading);
    reading.append(unit_word(unit, value_of(number)));
}

// The last part of a time need not be a number. What has no room is left to the dispatcher.
Section* end_at(Section* part, Reading& reading) {
    return append_no_number(part, reading) ? part : part->m_pprevious;
}

}  // namespace

TimeForm time_decide(Section* hours) {
    if (!is_mark(ahead(hours, 1), ':')) return NO_TIME;
    if (!has_digits_only(ahead(hours, 2))) return SHORT_TIME;
    const Section* separator = ahead(hours, 3);
    return is_mark(separator, ':') || is_mark(separator, '\'') ? LONG_TIME : SHORT_TIME;
}

Section* time_number(Section* hours, TimeForm form, Reading& reading) {
    Section* minutes = ahead(hours, 2);
    Section* seconds = ahead(hours, 4);
    if (form == SHORT_TIME && minutes != nullptr) {
        append_number(hours->sz_char, reading);
        reading.append(" ");
        if (!is_number(minutes)) return end_at(minutes, reading);
        append_number(minutes->sz_char, reading);
        return minutes;
    }
    if (form == LONG_TIME && seconds != nullptr) {
        append_part(hours, HOURS, reading);
        append_part(minutes, MINUTES, reading);
        if (!is_number(seconds)) return end_at(seconds, reading);
        append_part(seconds, SECONDS, reading);
        return seconds;
    }
    return nullptr;
}

}  // namespace kavi::tn
