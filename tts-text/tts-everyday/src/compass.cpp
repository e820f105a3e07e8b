// Points of the compass, in addresses and directions.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "12 E. Elm", "E. 42nd"
bool is_of_address(const Place& place, std::size_t ahead) {
    const bool has_name = place.before() == ' ' && is_digit(place.before(2)) &&
                          is_upper(place.peek(ahead)) && is_lower(place.peek(ahead + 1));
    return has_name || ordinal_length(place, ahead) > 0;
}

// "35 km SW of Hilo", "2 miles W of", "from the SW"; "vitamin E of" is none
bool is_direction(const Place& place, std::string_view letters) {
    const std::string_view before = place.word_before();
    const bool is_after_the = before == "the" && letters.size() > 1 && !place.is_joined(2) &&
                              !(place.peek(2) == ' ' && is_upper(place.peek(3)));
    if (is_after_the) return true;
    if (!place.starts_with(" of ", letters.size()) || place.before() != ' ') return false;
    return letters.size() > 1 || before == "blocks" || before == "just" ||
           find(UNITS, before) != nullptr || find(COUNTED_NOUNS, before) != nullptr;
}

}  // namespace

// "12 E. Elm St.", "E. 42nd St."
bool read_compass_point(const Place& place, Found& found) {
    const std::string_view letters = place.letters();
    const std::size_t stop = letters.size();
    if (stop > 2 || place.peek(stop) != '.' || place.peek(stop + 1) != ' ') return false;
    const Row* row = find(COMPASS, letters);
    if (row == nullptr) return false;
    if (!is_of_address(place, stop + 2)) return false;
    found.say_name(0, stop, row->spoken());
    found.length = stop + 1;
    return true;
}

// "40 W 22nd St", "305 W Oak Ln", "Oak Avenue NW", "SW of Hilo"
bool read_bare_compass_point(const Place& place, Found& found) {
    const std::string_view letters = place.letters();
    if (place.is_joined_before()) return false;
    const Row* row = find(COMPASS, letters);
    if (row == nullptr) return false;
    if (place.is_joined(letters.size())) return false;
    const bool is_before_street =
        place.before() == ' ' && is_digit(place.before(2)) && is_street(place, letters.size() + 1);
    const std::size_t stop = place.before(2) == '.' ? 2 : 0;
    const bool is_after_street = letters.size() > 1 && is_street_word(place.word_before(stop));
    if (!is_before_street && !is_after_street && !is_direction(place, letters)) return false;
    found.say_name(0, letters.size(), row->spoken());
    found.length = letters.size();
    return true;
}

std::size_t say_compass_after(const Place& place, std::size_t ahead, std::string& out) {
    const std::size_t blank = place.peek(ahead) == ' ' ? 1 : 0;
    const std::string_view letters = place.letters(ahead + blank);
    const std::size_t end = ahead + blank + letters.size();
    const Row* row = find(COMPASS, letters);
    if (row == nullptr || place.is_joined(end)) return 0;
    say(row->spoken(), out);
    return end - ahead;
}

}  // namespace kavi::everyday
