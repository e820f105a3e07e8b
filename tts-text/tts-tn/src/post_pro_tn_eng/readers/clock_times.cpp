// Clock times: 10:30, and 10:30:15 or 10:30'15 with their units.

#include "parts.h"

namespace kavi {

using namespace tn;

namespace {

enum TimeForm { NO_TIME = 0, SHORT_TIME = 1, LONG_TIME = 2 };

struct TimeUnit {
    const char* one;
    const char* zero;  // says the number too, since the reading of 0 is blank
    const char* many;
};

constexpr TimeUnit HOURS = {" hour ", " zero hour ", " hours "};
constexpr TimeUnit MINUTES = {" minute ", " zero minute ", " minutes "};
constexpr TimeUnit SECONDS = {" second ", " zero second ", " seconds "};

const char* unit_word(const TimeUnit& unit, long value) {
    if (value == 1) return unit.one;
    return value == 0 ? unit.zero : unit.many;
}

}  // namespace

int PostProTnEng::time_decide(Section* pSection) {
    if (!is_mark(ahead(pSection, 1), ':')) return NO_TIME;
    Section* minutes = ahead(pSection, 2);
    if (minutes == nullptr || number_def(minutes->sz_char) == 0) return SHORT_TIME;
    const Section* separator = ahead(pSection, 3);
    return is_mark(separator, ':') || is_mark(separator, '\'') ? LONG_TIME : SHORT_TIME;
}

Section* PostProTnEng::time_number(Section* psection, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return nullptr;
    Section* minutes = ahead(psection, 2);
    Section* seconds = ahead(psection, 4);
    Reading reading(sz_target_text);
    // The hours' class is overwritten by the form code, but they are always a number.
    const auto read = [&](Section* part, const TimeUnit* unit) {
        if (part != psection && !is_number(part)) {
            append_no_number(part, reading);
            return;
        }
        number_to_string(part->sz_char, scratch.text());
        reading.take(scratch);
        if (unit != nullptr) reading.append(unit_word(*unit, value_of(part->sz_char)));
    };

    if (psection->m_nmark == SHORT_TIME && minutes != nullptr) {
        read(psection, nullptr);
        reading.append(" ");
        read(minutes, nullptr);
        return minutes;
    }
    if (psection->m_nmark == LONG_TIME && seconds != nullptr) {
        read(psection, &HOURS);
        read(minutes, &MINUTES);
        read(seconds, &SECONDS);
        return seconds;
    }
    return nullptr;
}

}  // namespace kavi
