// Times of day.

#include "rules.h"

namespace kavi::everyday {

namespace {

// The words for "p.m.", "pm" or "PM" at offset `ahead`, after at most one blank; null if none.
const char* half_of_day(const Cursor& cursor, std::size_t ahead, std::size_t& length) {
    const std::size_t blank = cursor.peek(ahead) == ' ' ? 1 : 0;
    const std::size_t at = ahead + blank;
    const char first = to_lower(cursor.peek(at));
    if (first != 'a' && first != 'p') return nullptr;
    const bool has_stops = cursor.peek(at + 1) == '.' && to_lower(cursor.peek(at + 2)) == 'm';
    const bool has_none = to_lower(cursor.peek(at + 1)) == 'm' && !cursor.is_joined(at + 2);
    if (!has_stops && !has_none) return nullptr;
    length = blank + (has_stops ? 3 : 2);
    if (has_stops && cursor.peek(at + 3) == '.' && !cursor.may_end_sentence(at + 4)) ++length;
    return first == 'a' ? "a m" : "p m";
}

// A time of day as written; its length is 0 if there is none.
struct Clock {
    std::string_view hour;
    std::string_view minutes;
    std::string_view seconds;
    bool has_stop = false;       // "4.15"
    const char* half = nullptr;  // "a m" or "p m"
    std::size_t length = 0;
};

Clock clock_at(const Cursor& cursor, std::size_t ahead) {
    Clock clock;
    clock.hour = cursor.digits(ahead);
    if (clock.hour.empty() || clock.hour.size() > 2 ||
        clock.hour > (clock.hour.size() == 2 ? "24" : "9"))
        return {};
    std::size_t end = ahead + clock.hour.size();
    const auto two_digits = [&](bool may_be_stop) -> std::string_view {
        if (cursor.peek(end) != ':' && !(may_be_stop && cursor.peek(end) == '.')) return {};
        const std::string_view digits = cursor.digits(end + 1);
        if (digits.size() != 2 || digits > "59") return {};
        end += 3;
        return digits;
    };
    clock.has_stop = cursor.peek(end) == '.';
    clock.minutes = two_digits(true);
    clock.has_stop = clock.has_stop && !clock.minutes.empty();
    if (!clock.minutes.empty() && !clock.has_stop) clock.seconds = two_digits(false);
    std::size_t half_length = 0;
    clock.half = half_of_day(cursor, end, half_length);
    if (clock.half == nullptr && !clock.minutes.empty() && !clock.has_stop) {
        const char half = to_lower(cursor.peek(end));  // "5:55a"
        if ((half == 'a' || half == 'p') && !cursor.is_joined(end + 1)) {
            clock.half = half == 'a' ? "a m" : "p m";
            half_length = 1;
        }
    }
    if (clock.has_stop && clock.half == nullptr) return {};  // "4.15" is a time only before "p.m."
    clock.length = end + half_length - ahead;
    return clock;
}

void say_hour_and_minutes(const Clock& clock, bool has_half, std::string& out) {
    say_cardinal(clock.hour, out);
    if (clock.minutes.empty() || (clock.minutes == "00" && has_half)) return;
    if (clock.minutes == "00")
        return say(clock.hour.size() == 2 && clock.hour > "12" ? "hundred" : "oclock", out);
    if (clock.minutes[0] == '0') say("oh", out);
    say_cardinal(clock.minutes, out);
}

// With seconds, but without "p.m.", as a length of time.
void say_clock(const Clock& clock, bool has_half, std::string& out) {
    if (clock.seconds.empty()) return say_hour_and_minutes(clock, has_half, out);
    if (has_half) {
        say_hour_and_minutes(clock, true, out);
        say("and", out);
    } else {
        say_cardinal(clock.hour, out);
        say(clock.hour == "1" ? "hour" : "hours", out);
        say_cardinal(clock.minutes, out);
        say(clock.minutes == "01" ? "minute" : "minutes", out);
    }
    say_cardinal(clock.seconds, out);
    say(has_half && clock.seconds == "01" ? "second" : "seconds", out);
}

// The same, with "a m" or "p m".
void say_time(const Clock& clock, bool has_half, std::string& out) {
    say_clock(clock, has_half, out);
    if (clock.half != nullptr) say(clock.half, out);
}

// "9-5 p.m.", "9:00–17:00"
bool read_time_range(const Cursor& cursor, const Clock& first, Found& found) {
    const std::size_t dash = cursor.dash(first.length);
    const Clock last = dash > 0 ? clock_at(cursor, first.length + dash) : Clock{};
    const bool is_range = last.length > 0 && (last.half != nullptr ||
                                              (!first.minutes.empty() && !last.minutes.empty()));
    if (!is_range) return false;
    say_time(first, first.half != nullptr || last.half != nullptr, found.words);
    say("to", found.words);
    say_time(last, last.half != nullptr, found.words);
    found.length = first.length + dash + last.length;
    return true;
}

// "at 0830", "by 0830", "due 0830": what is before a date is before a time too.
bool is_after_at(const Cursor& cursor) {
    const std::string_view before = cursor.word_before();
    const Row* row = find_lower(BEFORE_DAY, before);
    return before == "at" || before == "At" || (row != nullptr && row->kind != Kind::may_end);
}

// "at 1200 hours", "0600 EST", "at 0830"; "for 1200 hours" is a length of time
bool read_military(const Cursor& cursor, std::string_view digits, Found& found) {
    if (digits.size() != 4 || digits > "2400" || digits[2] > '5' || cursor.is_joined(4))
        return false;
    const bool has_zero = digits[0] == '0' && digits[1] != '0';
    const bool has_hours = cursor.starts_with(" hours", 4) || cursor.starts_with(" hrs", 4);
    const bool has_zone = cursor.peek(4) == ' ' && find(ZONES, cursor.letters(5)) != nullptr;
    const bool is_time =
        has_zone || (has_hours && has_zero) ||
        ((has_hours || (has_zero && cursor.peek(4) != '-')) && is_after_at(cursor));
    if (!is_time) return false;
    if (digits[0] == '0') say("oh", found.words);
    say_cardinal(digits.substr(0, 2), found.words);
    const std::string_view minutes = digits.substr(2);
    if (minutes == "00") {
        say("hundred", found.words);
    } else {
        if (minutes[0] == '0') say("oh", found.words);
        say_cardinal(minutes, found.words);
    }
    found.length = digits.size();
    if (cursor.starts_with(" hrs", 4)) {
        say("hours", found.words);
        found.length += 4;
    }
    return true;
}

// "in 35:20": minutes and seconds, since a day has 24 hours; "60:40" is a division
bool read_minutes_and_seconds(const Cursor& cursor, std::string_view minutes, Found& found) {
    const std::string_view seconds = cursor.digits(minutes.size() + 1);
    const std::size_t end = minutes.size() + 1 + seconds.size();
    if (minutes.size() != 2 || minutes < "25" || seconds.size() != 2 || seconds > "59" ||
        cursor.before() == ':')
        return false;
    const bool goes_on =
        cursor.is_joined(end) ||
        ((cursor.peek(end) == ':' || cursor.peek(end) == '.') && is_digit(cursor.peek(end + 1)));
    if (goes_on) return false;
    say_cardinal(minutes, found.words);
    if (tn::value_of(minutes) + tn::value_of(seconds) == 100) {
        say("to", found.words);
    } else if (seconds[0] == '0') {
        say("oh", found.words);
    }
    say_cardinal(seconds, found.words);
    found.length = end;
    return true;
}

// "2h16", "1h30m"
bool read_hours_and_minutes(const Cursor& cursor, std::string_view hours, Found& found) {
    const std::string_view minutes = cursor.digits(hours.size() + 1);
    const std::size_t m = hours.size() + 1 + minutes.size();
    const std::string_view unit = cursor.letters(m);
    const bool is_one =
        cursor.peek(hours.size()) == 'h' && is_value(hours, 0, 24) && is_value(minutes, 0, 59) &&
        (unit.empty() || unit == "m" || unit == "min") && !cursor.is_joined(m + unit.size());
    if (!is_one) return false;
    say_cardinal(hours, found.words);
    say(hours == "1" ? "hour" : "hours", found.words);
    say_cardinal(minutes, found.words);
    if (!unit.empty()) say(minutes == "1" ? "minute" : "minutes", found.words);
    found.length = m + unit.size();
    return true;
}

}  // namespace

std::size_t say_iso_time(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const Clock clock = clock_at(cursor, ahead);
    std::size_t end = ahead + clock.length;
    const bool has_zone = cursor.peek(end) == 'Z' && !cursor.is_joined(end + 1);
    if (clock.minutes.empty() || clock.has_stop || (cursor.is_joined(end) && !has_zone)) return 0;
    if (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1))) return 0;
    say_time(clock, clock.half != nullptr || !clock.seconds.empty(), out);
    if (has_zone) {
        say("U T C", out);
        ++end;
    }
    return end - ahead;
}

void read_time(const Cursor& cursor, Found& found) {
    const std::string_view digits = cursor.digits();
    const char after = cursor.peek(digits.size());
    if (after == ':' && read_minutes_and_seconds(cursor, digits, found)) return;
    if (after == 'h' && read_hours_and_minutes(cursor, digits, found)) return;
    if (read_military(cursor, digits, found)) return;
    const char next = to_lower(cursor.peek(digits.size() + 1));
    if (after == ' ' && next != 'a' && next != 'p') return;  // as most numbers
    const Clock time = clock_at(cursor, 0);
    if (time.length == 0 || read_time_range(cursor, time, found)) return;
    if (time.half == nullptr && (time.minutes.empty() || cursor.letter(time.length) > 0)) return;
    const bool is_ratio = cursor.peek(time.length) == ' ' &&
                          find(RATIO_NOUNS, cursor.letters(time.length + 1)) != nullptr;
    if (is_ratio) return;  // "a 1:10 dilution"
    say_time(time, time.half != nullptr, found.words);
    found.length = time.length;
}

}  // namespace kavi::everyday
