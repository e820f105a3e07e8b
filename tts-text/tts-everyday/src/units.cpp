// Units of measurement after a number.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "2h 10m": after hours, these are minutes.
bool is_after_hours(const Place& place) {
    return place.before() == ' ' && place.before(2) == 'h' && is_digit(place.before(3));
}

// "5'4\"": feet and inches.
bool read_height(const Place& place, Found& found) {
    const std::string_view feet = place.digits();
    const std::size_t mark = place.starts_with("′", feet.size()) ? 3 : 1;
    if (feet.size() != 1 || (mark == 1 && place.peek(1) != '\'')) return false;
    const std::string_view inches = place.digits(1 + mark);
    if (inches.empty() || inches.size() > 2) return false;
    const std::size_t end = 1 + mark + inches.size();
    const std::size_t end_mark = place.starts_with("″", end) ? 3 : 1;
    if (end_mark == 1 && place.peek(end) != '"') return false;
    say_cardinal(feet, found.words);
    say("foot", found.words);
    say_cardinal(inches, found.words);
    found.length = end + end_mark;
    return true;
}

}  // namespace

void read_unit(const Place& place, Found& found) {
    if (read_height(place, found)) return;
    const Number number = number_at(place, 0);
    std::size_t end = number.length;
    Number second;  // of a range
    const std::size_t dash = place.dash(end);
    if (dash > 0) second = number_at(place, end + dash);
    if (second.length > 0) end += dash + second.length;
    const std::size_t blank = place.peek(end) == ' ' || place.peek(end) == '-' ? 1 : 0;
    const bool may_be_plural = blank == 0 && number.fraction.empty();  // "the 5s"
    const Row* row = place.find_row(UNITS, end + blank, [&](const Row& candidate) {
        return !place.is_joined(end + blank + candidate.written.size()) &&
               !(candidate.written == "s" && may_be_plural);
    });
    if (row == nullptr) return;
    number.say(found.words);
    if (second.length > 0) {
        say("to", found.words);
        second.say(found.words);
    }
    const std::size_t after = end + blank + row->written.size();
    const bool is_adjective = place.peek(end) == '-' || place.is_before_noun(after);
    const bool is_one = (number.is_one() && second.length == 0) || is_adjective;
    if (row->written == "m" && is_after_hours(place)) {
        say(number.is_one() ? "minute" : "minutes", found.words);
    } else {
        found.say_name(end + blank, row->written.size(), is_one ? row->spoken : row->many);
    }
    const bool has_stop = place.peek(after) == '.' && !place.may_end_sentence(after + 1);
    found.length = after + (has_stop ? 1 : 0);
}

}  // namespace kavi::everyday
