// Points of the compass, in addresses and directions.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "12 E. Elm", "E. 42nd"
bool is_of_address(const Cursor& cursor, std::size_t ahead) {
    const bool has_name = cursor.before() == ' ' && is_digit(cursor.before(2)) &&
                          is_upper(cursor.peek(ahead)) && is_lower(cursor.peek(ahead + 1));
    return has_name || ordinal_length(cursor, ahead) > 0;
}

// "35 km SW of Hilo", "2 miles W of", "from the SW"; "vitamin E of" is none
bool is_direction(const Cursor& cursor, std::string_view letters) {
    const std::string_view before = cursor.word_before();
    const bool is_after_the = before == "the" && letters.size() > 1 && !cursor.is_joined(2) &&
                              !(cursor.peek(2) == ' ' && is_upper(cursor.peek(3)));
    if (is_after_the) return true;
    if (!cursor.starts_with(" of ", letters.size()) || cursor.before() != ' ') return false;
    return letters.size() > 1 || before == "blocks" || before == "just" ||
           find(UNITS, before) != nullptr || find(COUNTED_NOUNS, before) != nullptr;
}

}  // namespace

// "12 E. Elm St.", "E. 42nd St."
bool read_compass_point(const Cursor& cursor, Found& found) {
    const std::string_view letters = cursor.letters();
    const std::size_t stop = letters.size();
    if (stop > 2 || cursor.peek(stop) != '.' || cursor.peek(stop + 1) != ' ') return false;
    const Row* row = find(COMPASS, letters);
    if (row == nullptr) return false;
    if (!is_of_address(cursor, stop + 2)) return false;
    found.say_name(0, stop, row->spoken());
    found.length = stop + 1;
    return true;
}

// "40 W 22nd St", "305 W Oak Ln", "Oak Avenue NW", "SW of Hilo"
bool read_bare_compass_point(const Cursor& cursor, Found& found) {
    const std::string_view letters = cursor.letters();
    if (cursor.is_joined_before() || cursor.is_joined(letters.size())) return false;
    const Row* row = find(COMPASS, letters);
    if (row == nullptr) return false;
    const bool is_before_street = cursor.before() == ' ' && is_digit(cursor.before(2)) &&
                                  is_street(cursor, letters.size() + 1);
    const std::size_t stop = cursor.before(2) == '.' ? 2 : 0;
    const bool is_after_street = letters.size() > 1 && is_street_word(cursor.word_before(stop));
    if (!is_before_street && !is_after_street && !is_direction(cursor, letters)) return false;
    found.say_name(0, letters.size(), row->spoken());
    found.length = letters.size();
    return true;
}

std::size_t say_compass_after(const Cursor& cursor, std::size_t ahead, std::string& out) {
    const std::size_t blank = cursor.peek(ahead) == ' ' ? 1 : 0;
    const std::string_view letters = cursor.letters(ahead + blank);
    const std::size_t end = ahead + blank + letters.size();
    const Row* row = find(COMPASS, letters);
    if (row == nullptr || cursor.is_joined(end)) return 0;
    say(row->spoken(), out);
    return end - ahead;
}

}  // namespace kavi::everyday
