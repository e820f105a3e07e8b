// Primes and quotation marks after numbers: feet and inches, minutes and seconds of an angle.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "6'2 and", where nothing closes it: "'6'2" and "5'9'" are quoted.
bool may_be_bare_height(const Cursor& cursor, std::string_view feet, std::string_view inches,
                        std::size_t end) {
    const bool is_free =
        cursor.before() == '\0' || cursor.before() == ' ' || cursor.before() == '(';
    return is_free && feet.size() == 1 && feet[0] > '3' && (inches.size() == 1 || inches < "12") &&
           !cursor.is_joined(end) && cursor.apostrophe(end) == 0;
}

// "5'4\"", "12'6\"": feet and inches.
bool read_height(const Cursor& cursor, Found& found) {
    const std::string_view feet = cursor.digits();
    if (feet.empty() || feet.size() > 2) return false;
    const std::size_t mark = cursor.starts_with("′", feet.size()) ? 3 : 1;
    if ((mark == 1 && cursor.peek(feet.size()) != '\'')) return false;
    const std::string_view inches = cursor.digits(feet.size() + mark);
    if (inches.empty() || inches.size() > 2) return false;
    const std::size_t end = feet.size() + mark + inches.size();
    std::size_t end_mark = cursor.starts_with("″", end) ? 3 : 0;
    if (cursor.peek(end) == '"') end_mark = 1;
    if (end_mark == 0 && !may_be_bare_height(cursor, feet, inches, end)) return false;
    say_cardinal(feet, found.words);
    say("foot", found.words);
    say_cardinal(inches, found.words);
    found.length = end + end_mark;
    return true;
}

// The length of " x " and the like before the second number of a size.
std::size_t cross_length(const Cursor& cursor, std::size_t ahead) {
    for (const std::string_view cross : {" x ", " X ", " × ", " by ", "x", "×"}) {
        if (cursor.starts_with(cross, ahead) && is_digit(cursor.peek(ahead + cross.size())))
            return cross.size();
    }
    return 0;
}

// The second number of a size, "x 18\"", at offset `ahead`; `end` is set past its mark, to `ahead`
// if there is none.
Number second_of_size(const Cursor& cursor, std::size_t ahead, char mark, std::size_t& end) {
    const std::size_t cross = cross_length(cursor, ahead);
    const Number second = cross > 0 ? number_at(cursor, ahead + cross) : Number{};
    const std::size_t second_end = ahead + cross + second.length;
    const bool is_one = second.length > 0 && cursor.peek(second_end) == mark;
    end = is_one ? second_end + 1 : ahead;
    return is_one ? second : Number{};
}

// "twelve by eighteen", or a number alone
void say_size(const Number& number, const Number& second, std::string& out) {
    number.say(out);
    if (second.length == 0) return;
    say("by", out);
    second.say(out);
}

// Whether a quotation may be open before the cursor. A mark after a digit or "½" opens none.
bool may_be_quoted(const Cursor& cursor) {
    for (std::size_t back = 1; back < LOOK_BACK; ++back) {
        const char last = cursor.before(back + 1);
        if (cursor.before(back) == '"' && !is_digit(last) && !is_outside_ascii(last)) return true;
    }
    return false;
}

// "wide" after a length
bool is_measured(std::string_view word) {
    constexpr std::string_view MEASURED[] = {"deep", "high", "long", "tall", "thick", "wide"};
    return std::find(std::begin(MEASURED), std::end(MEASURED), word) != std::end(MEASURED);
}

// "17\" disks", but "12\" long"
bool is_adjective(const Cursor& cursor, std::size_t end, std::string_view next) {
    if (next.empty() || find_lower(NO_NOUNS, next) != nullptr) return false;
    return cursor.is_before_noun(end) || !is_measured(next);
}

// "6' tall", "12' x 15'"
bool read_feet(const Cursor& cursor, const Number& number, Found& found) {
    if (cursor.peek(number.length) != '\'') return false;
    std::size_t end = 0;
    const Number second = second_of_size(cursor, number.length + 1, '\'', end);
    const bool is_size = second.length > 0;
    if (!is_size && (cursor.peek(end) != ' ' || !is_measured(cursor.letters(end + 1))))
        return false;
    say_size(number, second, found.words);
    say(number.is_one() && !is_size ? "foot" : "feet", found.words);
    found.length = end;
    return true;
}

// "a 12\" pizza", "12\" x 18\""; a quotation may end in a number too
bool read_inches(const Cursor& cursor, const Number& number, Found& found) {
    const bool is_after_feet = cursor.before() == '\'';
    if (cursor.peek(number.length) != '"' || is_after_feet || may_be_quoted(cursor)) return false;
    std::size_t end = 0;
    const Number second = second_of_size(cursor, number.length + 1, '"', end);
    const bool is_size = second.length > 0;
    const std::string_view next = cursor.peek(end) == ' ' ? cursor.letters(end + 1) : "";
    const std::string_view before = cursor.word_before();
    const bool is_clear = is_size || !number.fraction.empty() || before == "a" || before == "an";
    if (cursor.is_joined(end) || (next.empty() && !is_size) || (!is_clear && is_upper(next[0])))
        return false;
    say_size(number, second, found.words);
    const bool is_one = (number.is_one() && !is_size) || is_adjective(cursor, end, next);
    say(is_one ? "inch" : "inches", found.words);
    found.length = end;
    return true;
}

// A part of an angle at offset `ahead`, with its mark: its length, 0 if none.
std::size_t say_part_of_angle(const Cursor& cursor, std::size_t ahead, char mark,
                              std::string_view prime, const char* unit, std::string& out) {
    const std::size_t blanks = cursor.blanks(ahead);
    const Number part = number_at(cursor, ahead + blanks);
    const std::size_t end = ahead + blanks + part.length;
    const bool has_prime = cursor.starts_with(prime, end);
    if (part.length == 0 || (!has_prime && cursor.peek(end) != mark)) return 0;
    part.say(out);
    say(unit, out);
    if (!part.is_one()) out += 's';
    return blanks + part.length + (has_prime ? prime.size() : 1);
}

// "40°42'46\" N", "51° 30′ W"
bool read_angle(const Cursor& cursor, const Number& number, Found& found) {
    constexpr std::string_view DEGREE = "°";
    if (!cursor.starts_with(DEGREE, number.length)) return false;
    std::string words;
    number.say(words);
    say(number.is_one() ? "degree" : "degrees", words);
    std::size_t end = number.length + DEGREE.size();
    const std::size_t minutes = say_part_of_angle(cursor, end, '\'', "′", "minute", words);
    if (minutes == 0) return false;
    end += minutes;
    end += say_part_of_angle(cursor, end, '"', "″", "second", words);
    end += say_compass_after(cursor, end, words);
    found.words = words;
    found.length = end;
    return true;
}

}  // namespace

bool read_inches_after(const Cursor& cursor, Found& found) {
    const std::size_t end = found.length + 1;
    if (cursor.peek(found.length) != '"' || cursor.is_joined(end) || may_be_quoted(cursor))
        return false;
    const bool is_mixed = found.words.find(" and ") != std::string::npos;
    const std::string_view next = cursor.peek(end) == ' ' ? cursor.letters(end + 1) : "";
    say(is_mixed && !is_adjective(cursor, end, next) ? "inches" : "inch", found.words);
    found.length = end;
    return true;
}

bool read_primes(const Cursor& cursor, const Number& number, Found& found) {
    return read_height(cursor, found) || read_angle(cursor, number, found) ||
           read_inches(cursor, number, found) || read_feet(cursor, number, found);
}

}  // namespace kavi::everyday
