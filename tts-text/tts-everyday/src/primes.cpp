// Primes and quotation marks after numbers: feet and inches, minutes and seconds of an angle.

#include "rules.h"

namespace kavi::everyday {

namespace {

// "6'2 and", where nothing closes it: "'6'2" and "5'9'" are quoted.
bool may_be_bare_height(const Place& place, std::string_view feet, std::string_view inches,
                        std::size_t end) {
    const bool is_free = place.before() == '\0' || place.before() == ' ' || place.before() == '(';
    return is_free && feet.size() == 1 && feet[0] > '3' && (inches.size() == 1 || inches < "12") &&
           !place.is_joined(end) && place.apostrophe(end) == 0;
}

// "5'4\"", "12'6\"": feet and inches.
bool read_height(const Place& place, Found& found) {
    const std::string_view feet = place.digits();
    if (feet.empty() || feet.size() > 2) return false;
    const std::size_t mark = place.starts_with("′", feet.size()) ? 3 : 1;
    if ((mark == 1 && place.peek(feet.size()) != '\'')) return false;
    const std::string_view inches = place.digits(feet.size() + mark);
    if (inches.empty() || inches.size() > 2) return false;
    const std::size_t end = feet.size() + mark + inches.size();
    std::size_t end_mark = place.starts_with("″", end) ? 3 : 0;
    if (place.peek(end) == '"') end_mark = 1;
    if (end_mark == 0 && !may_be_bare_height(place, feet, inches, end)) return false;
    say_cardinal(feet, found.words);
    say("foot", found.words);
    say_cardinal(inches, found.words);
    found.length = end + end_mark;
    return true;
}

// The length of " x " and the like before the second number of a size.
std::size_t cross_length(const Place& place, std::size_t ahead) {
    for (const std::string_view cross : {" x ", " X ", " × ", " by ", "x", "×"}) {
        if (place.starts_with(cross, ahead) && is_digit(place.peek(ahead + cross.size())))
            return cross.size();
    }
    return 0;
}

// The second number of a size, "x 18\"", at offset `ahead`; `end` is set past its mark, to `ahead`
// if there is none.
Number second_of_size(const Place& place, std::size_t ahead, char mark, std::size_t& end) {
    const std::size_t cross = cross_length(place, ahead);
    const Number second = cross > 0 ? number_at(place, ahead + cross) : Number{};
    const std::size_t second_end = ahead + cross + second.length;
    const bool is_one = second.length > 0 && place.peek(second_end) == mark;
    end = is_one ? second_end + 1 : ahead;
    return is_one ? second : Number{};
}

// Whether a quotation may be open before the cursor. A mark after a digit or "½" opens none.
bool may_be_quoted(const Place& place) {
    for (std::size_t back = 1; back < LOOK_BACK; ++back) {
        const char last = place.before(back + 1);
        if (place.before(back) == '"' && !is_digit(last) && !is_outside_ascii(last)) return true;
    }
    return false;
}

// "wide" after a length
bool is_measured(std::string_view word) {
    constexpr std::string_view MEASURED[] = {"deep", "high", "long", "tall", "thick", "wide"};
    return std::find(std::begin(MEASURED), std::end(MEASURED), word) != std::end(MEASURED);
}

// "17\" disks", but "12\" long"
bool is_adjective(const Place& place, std::size_t end, std::string_view next) {
    if (next.empty() || find_lower(NO_NOUNS, next) != nullptr) return false;
    return place.is_before_noun(end) || !is_measured(next);
}

// "6' tall", "12' x 15'"
bool read_feet(const Place& place, const Number& number, Found& found) {
    if (place.peek(number.length) != '\'') return false;
    std::size_t end = 0;
    const Number second = second_of_size(place, number.length + 1, '\'', end);
    const bool is_size = second.length > 0;
    if (!is_size && (place.peek(end) != ' ' || !is_measured(place.letters(end + 1)))) return false;
    number.say(found.words);
    if (is_size) {
        say("by", found.words);
        second.say(found.words);
    }
    say(number.is_one() && !is_size ? "foot" : "feet", found.words);
    found.length = end;
    return true;
}

// "a 12\" pizza", "12\" x 18\""; a quotation may end in a number too
bool read_inches(const Place& place, const Number& number, Found& found) {
    const bool is_after_feet = place.before() == '\'';
    if (place.peek(number.length) != '"' || is_after_feet || may_be_quoted(place)) return false;
    std::size_t end = 0;
    const Number second = second_of_size(place, number.length + 1, '"', end);
    const bool is_size = second.length > 0;
    const std::string_view next = place.peek(end) == ' ' ? place.letters(end + 1) : "";
    const std::string_view before = place.word_before();
    const bool is_clear = is_size || !number.fraction.empty() || before == "a" || before == "an";
    if (place.is_joined(end) || (next.empty() && !is_size) || (!is_clear && is_upper(next[0])))
        return false;
    number.say(found.words);
    if (is_size) {
        say("by", found.words);
        second.say(found.words);
    }
    const bool is_one = (number.is_one() && !is_size) || is_adjective(place, end, next);
    say(is_one ? "inch" : "inches", found.words);
    found.length = end;
    return true;
}

// A part of an angle at offset `ahead`, with its mark: its length, 0 if none.
std::size_t say_part_of_angle(const Place& place, std::size_t ahead, char mark,
                              std::string_view prime, const char* unit, std::string& out) {
    const std::size_t blanks = place.blanks(ahead);
    const Number part = number_at(place, ahead + blanks);
    const std::size_t end = ahead + blanks + part.length;
    const bool has_prime = place.starts_with(prime, end);
    if (part.length == 0 || (!has_prime && place.peek(end) != mark)) return 0;
    part.say(out);
    say(unit, out);
    if (!part.is_one()) out += 's';
    return blanks + part.length + (has_prime ? prime.size() : 1);
}

// "40°42'46\" N", "51° 30′ W"
bool read_angle(const Place& place, const Number& number, Found& found) {
    constexpr std::string_view DEGREE = "°";
    if (!place.starts_with(DEGREE, number.length)) return false;
    std::string words;
    number.say(words);
    say(number.is_one() ? "degree" : "degrees", words);
    std::size_t end = number.length + DEGREE.size();
    const std::size_t minutes = say_part_of_angle(place, end, '\'', "′", "minute", words);
    if (minutes == 0) return false;
    end += minutes;
    end += say_part_of_angle(place, end, '"', "″", "second", words);
    end += say_compass_after(place, end, words);
    found.words = words;
    found.length = end;
    return true;
}

}  // namespace

bool read_inches_after(const Place& place, Found& found) {
    const std::size_t end = found.length + 1;
    if (place.peek(found.length) != '"' || place.is_joined(end) || may_be_quoted(place))
        return false;
    const bool is_mixed = found.words.find(" and ") != std::string::npos;
    const std::string_view next = place.peek(end) == ' ' ? place.letters(end + 1) : "";
    say(is_mixed && !is_adjective(place, end, next) ? "inches" : "inch", found.words);
    found.length = end;
    return true;
}

bool read_primes(const Place& place, const Number& number, Found& found) {
    return read_height(place, found) || read_angle(place, number, found) ||
           read_inches(place, number, found) || read_feet(place, number, found);
}

}  // namespace kavi::everyday
