// Clock times: 10:30, and 10:30:15 or 10:30'15 with their units.

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

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

void append_part(const Token* number, const TimeUnit& unit, Reading& reading) {
    append_number(number->text(), reading);
    reading.append(unit_word(unit, value_of(number->text())));
}

// The last part of a time need not be a number. What has no room is left to the dispatcher.
const Token* end_at(const Token* part, Reading& reading) {
    return append_no_number(part, reading) ? part : part - 1;
}

}  // namespace

TimeForm time_decide(const Token* hours) {
    if (!is_mark(hours + 1, ':')) return NO_TIME;
    if (!hours[2].has_digits_only) return SHORT_TIME;
    const Token* separator = hours + 3;
    return is_mark(separator, ':') || is_mark(separator, '\'') ? LONG_TIME : SHORT_TIME;
}

const Token* time_number(const Token* hours, TimeForm form, Reading& reading) {
    const Token* minutes = ahead(hours, 2);
    const Token* last = form == LONG_TIME ? ahead(hours, 4) : minutes;
    if (!is_section(last)) return last;
    if (form == LONG_TIME) {
        append_part(hours, HOURS, reading);
        append_part(minutes, MINUTES, reading);
    } else {
        append_number(hours->text(), reading);
        reading.append(" ");
    }
    if (!is_number(last)) return end_at(last, reading);
    if (form == LONG_TIME) {
        append_part(last, SECONDS, reading);
    } else {
        append_number(last->text(), reading);
    }
    return last;
}

}  // namespace kavi::tn
