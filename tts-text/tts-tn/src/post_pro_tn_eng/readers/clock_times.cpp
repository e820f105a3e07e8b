// Clock times: 10:30, read without units, and 10:30:15 or 10:30'15, read with units.

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

namespace {

struct TimeUnit {
    const char* one;
    const char* zero;  // with the number, since append_number has no word for 0
    const char* many;
};

constexpr TimeUnit LONG_UNITS[] = {{" hour ", " zero hour ", " hours "},
                                   {" minute ", " zero minute ", " minutes "},
                                   {" second ", " zero second ", " seconds "}};
constexpr TimeUnit SHORT_UNITS[] = {{" ", " ", " "}, {"", "", ""}};  // none

const char* unit_word(const TimeUnit& unit, int value) {
    if (value == 1) return unit.one;
    return value == 0 ? unit.zero : unit.many;
}

void append_number_of(const TimeUnit& unit, const Token* part, Reading& reading) {
    append_number(part->text(), reading);
    reading.append(unit_word(unit, value_of(part->text())));
}

// Appends minutes or seconds. A part that is not a number is appended by append_no_number: false
// when it does not fit and is left to the dispatcher.
bool append_part(const TimeUnit& unit, const Token* part, Reading& reading) {
    if (!part->has_digits_only) return append_no_number(part, reading);
    reading.end_word();
    append_number_of(unit, part, reading);
    return true;
}

}  // namespace

TimeForm time_decide(const Token* hours) {
    if (!is_mark(hours + 1, ':')) return NO_TIME;
    if (!hours[2].has_digits_only) return SHORT_TIME;
    const Token* separator = hours + 3;
    return is_mark(separator, ':') || is_mark(separator, '\'') ? LONG_TIME : SHORT_TIME;
}

const Token* time_number(const Token* hours, TimeForm form, Reading& reading) {
    const bool is_long = form == LONG_TIME;
    const Token* last = ahead(hours, is_long ? 4 : 2);
    if (!is_section(last)) return last;
    const TimeUnit* unit = is_long ? LONG_UNITS : SHORT_UNITS;
    append_number_of(*unit, hours, reading);
    for (const Token* part = hours + 2;; part += 2) {
        if (!append_part(*++unit, part, reading)) return part - 1;
        if (part == last) return last;
    }
}

}  // namespace kavi::tn
