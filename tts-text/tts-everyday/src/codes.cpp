// Numbers that name a thing and count nothing: versions, models, codes.

#include "rules.h"

namespace kavi::everyday {

namespace {

// Makes the last word of a number the plural: "sevens", "thirties", "sixes".
void say_many(std::string& words) {
    if (words.back() == 'y') {
        words.replace(words.size() - 1, 1, "ies");
    } else {
        words += words.back() == 'x' ? "es" : "s";
    }
}

constexpr std::size_t LONGEST_VERSION = 32;  // so that a chain of them is not read from each

// A part of a version or an IP address.
void say_part(std::string_view digits, std::string& out) {
    const bool is_number = digits.size() < 3 && (digits[0] != '0' || digits.size() == 1);
    is_number ? say_cardinal(digits, out) : say_digits(digits, out);
}

}  // namespace

// "1.5.2", "10.0.0.1", "7.x"; a number with one point is a decimal
void read_version(const Cursor& cursor, Found& found) {
    if (cursor.before() == '.' || is_digit(cursor.before())) return;
    const std::string_view first = cursor.digits();
    if (cursor.peek(first.size()) != '.') return;
    const bool is_number = number_at(cursor, 0).whole.size() > first.size();  // "1.000.000"
    if (is_number) return;
    say_part(first, found.words);
    std::size_t end = first.size();
    int n_points = 0;
    bool ends_in_x = false;
    while (end < LONGEST_VERSION && cursor.peek(end) == '.' && !ends_in_x) {
        const std::string_view part = cursor.digits(end + 1);
        ends_in_x = cursor.peek(end + 1) == 'x' && !cursor.is_joined(end + 2);
        if (part.empty() && !ends_in_x) break;
        say("point", found.words);
        ends_in_x ? say("x", found.words) : say_part(part, found.words);
        end += 1 + (ends_in_x ? 1 : part.size());
        ++n_points;
    }
    if ((n_points < 2 && !ends_in_x) || cursor.peek(end) == '%') return;
    if (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1))) return;
    found.length = end;
}

// "1080p", "720p"
void read_resolution(const Cursor& cursor, Found& found) {
    constexpr std::string_view LINES[] = {"240",  "360",  "480",  "576", "720",
                                          "1080", "1440", "2160", "4320"};
    const std::string_view lines = cursor.digits();
    const std::size_t end = lines.size() + 1;
    const bool is_one = cursor.peek(lines.size()) == 'p' && !cursor.is_joined(end) &&
                        std::find(std::begin(LINES), std::end(LINES), lines) != std::end(LINES);
    if (!is_one || cursor.is_joined_before()) return;
    say_in_pairs(lines, found.words);
    say("p", found.words);
    found.length = end;
}

// "0x1F", digit by digit
bool read_hexadecimal(const Cursor& cursor, Found& found) {
    constexpr std::size_t LONGEST = 18;
    const auto is_of_base = [](char c) {
        const char lower = to_lower(c);
        return is_digit(c) || (lower >= 'a' && lower <= 'f');
    };
    if (!cursor.starts_with("0x") || cursor.before() == '.' || cursor.is_joined_before())
        return false;
    const std::size_t end = 2 + cursor.run(is_of_base, 2);
    if (end < 4 || end > LONGEST || cursor.is_joined(end)) return false;
    say("zero x", found.words);
    for (std::size_t at = 2; at < end; ++at) {
        const std::string_view digit = cursor.part(at, 1);
        is_digit(digit[0]) ? say_digits(digit, found.words) : say(digit, found.words);
    }
    found.length = end;
    return true;
}

// "978-0-306-40615-7", "4111-1111-1111-1111"
void read_long_code(const Cursor& cursor, Found& found) {
    if (read_hexadecimal(cursor, found)) return;
    constexpr std::size_t LONGEST = 32;
    constexpr std::size_t LEAST_DIGITS = 9;
    if (cursor.before() == '-' || is_digit(cursor.before())) return;
    std::size_t end = cursor.digits().size();
    int n_hyphens = 0;
    while (end < LONGEST && cursor.peek(end) == '-') {
        const std::size_t n = cursor.digits(end + 1).size();
        if (n == 0) break;
        end += 1 + n;
        ++n_hyphens;
    }
    const bool is_long = end >= LEAST_DIGITS + static_cast<std::size_t>(n_hyphens);
    const bool is_zip = n_hyphens == 1 && end == 10 && cursor.peek(5) == '-';  // "10013-1104"
    const bool begins_with_date = cursor.peek(4) == '-' && cursor.peek(7) == '-';
    if ((n_hyphens < 3 && !is_zip) || !is_long || begins_with_date) return;
    if (cursor.is_joined(end) || cursor.peek(end) == '-') return;
    for (std::size_t at = 0; at < end; at += cursor.digits(at).size() + 1) {
        say_digits(cursor.digits(at), found.words);
    }
    found.length = end;
}

// "F-150", "US-101": after a hyphen and one or two capitals.
bool is_model(const Cursor& cursor) {
    if (cursor.before() != '-') return false;
    const std::string_view series = cursor.letters_before(1);
    return !series.empty() && series.size() < 3 &&
           std::all_of(series.begin(), series.end(), is_upper);
}

// "a 401(k)", "501(c)(3)"
bool is_section_of_law(const Cursor& cursor, std::size_t ahead) {
    return cursor.peek(ahead) == '(' && is_lower(cursor.peek(ahead + 1)) &&
           cursor.peek(ahead + 2) == ')';
}

// "a 404 error", "the 502 response"; not "404 errors", "a 404 km walk"
bool is_status(const Cursor& cursor) {
    constexpr std::size_t LENGTH = 3;
    if (cursor.digits().size() != LENGTH) return false;
    const std::string_view noun = cursor.letters(LENGTH + 1);
    if (noun != "error" && noun != "response") return false;
    const std::string article = in_lower_case(cursor.word_before());
    return article == "a" || article == "the";
}

// The row of NUMBERED for the word before the cursor, or null. An abbreviation may have a full
// stop, and after the word of a code there may be more: "your code is: 4821".
const Row* numbered_before(const Cursor& cursor) {
    const char mark = cursor.before(2);
    const bool has_mark = mark == '.' || mark == ':';
    std::string_view word = cursor.word_before(has_mark ? 2 : 0);
    const bool has_verb = word == "is" || word == "was" || word == "in";
    if (has_verb) word = cursor.word_before((has_mark ? 2 : 1) + word.size());
    const Row* row = find(NUMBERED, word);
    if (row == nullptr || (mark == '.' && find(TITLES, word) == nullptr)) return nullptr;
    return (has_verb || mark == ':') && row->kind != Kind::glued ? nullptr : row;
}

// The length of a second group of digits with the hyphen before it, "482-913"; 0 if none.
std::size_t second_group(const Cursor& cursor, std::size_t ahead) {
    if (cursor.peek(ahead) != '-') return 0;
    const std::size_t length = cursor.digits(ahead + 1).size();
    return length > 0 ? length + 1 : 0;
}

// Whether the number that ends at `end` is a part of something longer, or a percentage.
bool goes_on(const Cursor& cursor, std::size_t end) {
    const char after = cursor.peek(end);
    const bool is_mark = after == '.' || after == ',' || after == ':' || after == '/';
    const std::size_t dash = cursor.dash(end);
    return cursor.is_joined(end) || (dash > 0 && is_digit(cursor.peek(end + dash))) ||
           after == '%' || (is_mark && is_digit(cursor.peek(end + 1)));
}

// "Flight 370", "PIN 4821", "code 482-913"
void read_after_name(const Cursor& cursor, std::string_view digits, Found& found) {
    const Row* row = numbered_before(cursor);
    if (row == nullptr) return;
    const std::size_t second = row->kind != Kind::words ? second_group(cursor, digits.size()) : 0;
    const std::size_t end = digits.size() + second;
    if (goes_on(cursor, end)) return;
    const auto say_part = row->kind == Kind::glued ? say_digits : say_in_pairs;
    say_part(digits, found.words);
    if (second > 0) say_part(cursor.digits(digits.size() + 1), found.words);
    found.length = end;
    if (row->kind == Kind::words) found.length += say_compass_after(cursor, end, found.words);
}

// "Flight 370", "Biology 101", "PO Box 1410", "call 911", "F-150", "401(k)", "a 404 error"
void read_numbered(const Cursor& cursor, Found& found) {
    const std::string_view digits = cursor.digits();
    const std::size_t end = digits.size();
    if (end < 3 || cursor.is_joined(end)) return;
    if ((end == 3 && is_section_of_law(cursor, end)) || is_model(cursor)) {
        if (cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1))) return;
        say_in_pairs(digits, found.words);
        found.length = end + say_compass_after(cursor, end, found.words);
        return;
    }
    // "1600 Oak Avenue", "a 404 error"
    if (cursor.peek(end) == ' ' && (is_street(cursor, end + 1) || is_status(cursor))) {
        say_in_pairs(digits, found.words);
        found.length = end;
        return;
    }
    if (cursor.before() != ' ' || (cursor.peek(end) != '-' && goes_on(cursor, end))) return;
    const bool is_emergency = find(EMERGENCY_NUMBERS, digits) != nullptr && cursor.dash(end) == 0 &&
                              find_lower(BEFORE_DIALLED, cursor.word_before()) != nullptr;
    if (!is_emergency) return read_after_name(cursor, digits, found);
    say_digits(digits, found.words);
    found.length = end;
}

// "old 737s", "MiG-21s", "1000's", "a few 1's"; decades are read before
void read_plural_number(const Cursor& cursor, Found& found) {
    constexpr std::size_t LONGEST = 7;
    const Number number = number_at(cursor, 0);
    const std::size_t end = number.length;
    const std::size_t mark = cursor.apostrophe(end);
    const std::size_t s = end + mark;
    if (end > LONGEST || !number.fraction.empty() || cursor.before() == '.' ||
        cursor.before() == ',' || cursor.before() == '$')
        return;
    if (cursor.peek(s) != 's' || cursor.is_joined(s + 1)) return;
    const std::string digits = number.digits();
    const bool is_round = digits.find_first_not_of('0', 1) == std::string_view::npos;
    if (is_round && digits[0] == '1' && end > 2) {  // "1000s of", not "one thousands"
        std::string words;
        say_cardinal(digits, words);
        constexpr std::string_view ONE = "one ";
        found.words = words.compare(0, ONE.size(), ONE) == 0 ? words.substr(ONE.size()) : words;
    } else if (end == 3 || end == 4) {
        say_in_pairs(digits, found.words);
    } else {
        say_cardinal(digits, found.words);
    }
    say_many(found.words);
    found.length = s + 1;
}

// "IPv6", "TLSv1.2"
bool read_version_of_capitals(const Cursor& cursor, Found& found) {
    const std::size_t v = cursor.run(is_upper);
    if (v < 2 || cursor.peek(v) != 'v') return false;
    const Number version = number_at(cursor, v + 1);
    const std::size_t end = v + 1 + version.length;
    if (version.length == 0 || cursor.is_joined(end)) return false;
    found.words = cursor.part(0, v);
    say("v", found.words);
    version.say(found.words);
    found.length = end;
    return true;
}

// "i386", "x509"
bool read_small_letter(const Cursor& cursor, Found& found) {
    const std::string_view digits = cursor.digits(1);
    if (!is_lower(cursor.peek()) || digits.size() != 3) return false;
    const bool goes_on = cursor.is_joined(4) || (cursor.peek(4) != ' ' && is_digit(cursor.peek(5)));
    if (goes_on || cursor.is_joined_before()) return false;
    found.words = cursor.part(0, 1);
    say_in_pairs(digits, found.words);
    found.length = 4;
    return true;
}

// "CO2", "BA249", "H2O", "SW3 4ND": capitals letter by letter; up to two digits as a number, more
// one by one.
void read_code(const Cursor& cursor, Found& found) {
    if (read_small_letter(cursor, found) || read_version_of_capitals(cursor, found)) return;
    constexpr std::size_t LONGEST = 3;
    std::size_t end = 0;
    bool has_digits = false;
    for (std::size_t n_runs = 0; n_runs < LONGEST; ++n_runs) {
        const std::size_t n_letters = cursor.run(is_upper, end);
        const std::string_view digits = cursor.digits(end + n_letters);
        if (n_letters > LONGEST || digits.size() > LONGEST + 1 || (end == 0 && n_letters == 0))
            return;
        for (std::size_t i = 0; i < n_letters; ++i) say(cursor.part(end + i, 1), found.words);
        end += n_letters + digits.size();
        if (digits.empty()) break;
        has_digits = true;
        if (may_be_year(digits) && find(BEFORE_YEAR, cursor.part(0, n_letters)) != nullptr) {
            say_year(digits, found.words);  // "FY2031"
            break;
        }
        const bool is_number = digits.size() < LONGEST && (digits[0] != '0' || digits.size() == 1);
        is_number ? say_cardinal(digits, found.words) : say_digits(digits, found.words);
    }
    if (!has_digits) return;
    while (end < LONGEST_VERSION && cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1))) {
        const std::string_view minor = cursor.digits(end + 1);  // "USB3.0"
        say("point", found.words);
        say_digits(minor, found.words);
        end += 1 + minor.size();
    }
    if (cursor.peek(end) == 's' && !cursor.is_joined(end + 1)) {  // "MP3s"
        say_many(found.words);
        found.length = end + 1;
        return;
    }
    if (cursor.is_joined(end)) return;
    // The second half of a postcode.
    const bool has_half = cursor.peek(end) == ' ' && is_digit(cursor.peek(end + 1)) &&
                          cursor.run(is_upper, end + 2) == 2 && !cursor.is_joined(end + 4);
    if (has_half) {
        say_digits(cursor.part(end + 1, 1), found.words);
        say(cursor.part(end + 2, 1), found.words);
        say(cursor.part(end + 3, 1), found.words);
        end += 4;
    }
    found.length = end;
}

}  // namespace kavi::everyday
