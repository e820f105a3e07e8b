// Numbers by themselves: ordinals, fractions, percentages, ranges, decimals, and signs before them.

#include "rules.h"
#include "spoken_numbers.h"

namespace kavi::everyday {

namespace {

struct WordsRow {
    std::string_view written;
    const char* spoken;
};

constexpr WordsRow FRACTIONS[] = {
    {"\xc2\xbd", "one half"},          {"\xc2\xbc", "one quarter"},
    {"\xc2\xbe", "three quarters"},    {"\xe2\x85\x93", "one third"},
    {"\xe2\x85\x94", "two thirds"},    {"\xe2\x85\x9b", "one eighth"},
    {"\xe2\x85\x9c", "three eighths"}, {"\xe2\x85\x9d", "five eighths"},
    {"\xe2\x85\x9e", "seven eighths"}, {"\xe2\x85\x95", "one fifth"},
};

// Letters of ordinals, on the line and above it.
constexpr std::string_view SUFFIXES[] = {"st",
                                         "nd",
                                         "rd",
                                         "th",
                                         "\xcb\xa2\xe1\xb5\x97",
                                         "\xe2\x81\xbf\xe1\xb5\x88",
                                         "\xca\xb3\xe1\xb5\x88",
                                         "\xe1\xb5\x97\xca\xb0"};

std::size_t suffix_length(const Place& place, std::size_t ahead) {
    for (const std::string_view suffix : SUFFIXES) {
        const bool is_there = place.starts_with(suffix, ahead);
        if (is_there && !is_letter(place.peek(ahead + suffix.size()))) return suffix.size();
    }
    return 0;
}

const char* fraction_at(const Place& place, std::size_t ahead, std::size_t& length) {
    for (const WordsRow& row : FRACTIONS) {
        if (!place.starts_with(row.written, ahead)) continue;
        length = row.written.size();
        return row.spoken;
    }
    return nullptr;
}

struct NoFractionRow {
    std::string_view above;
    std::string_view below;
    const char* spoken;
};
constexpr NoFractionRow NO_FRACTIONS[] = {
    {"24", "7", "twenty four seven"},
    {"9", "11", "nine eleven"},
};

// "1/2", "3/4", "24/7": up to two digits on both sides.
bool say_fraction(std::string_view above, std::string_view below, std::string& out) {
    if (above.size() > 2 || below.empty() || below.size() > 3 || below[0] == '0') return false;
    for (const auto& known : NO_FRACTIONS) {
        if (above != known.above || below != known.below) continue;
        say(known.spoken, out);
        return true;
    }
    if (below == "1") return false;
    say_cardinal(above, out);
    const bool is_one = above == "1";
    if (below == "2") {
        say(is_one ? "half" : "halves", out);
    } else if (below == "4") {
        say(is_one ? "quarter" : "quarters", out);
    } else {
        say_ordinal(below, out);
        if (!is_one) out += 's';
    }
    return true;
}

bool read_fraction(const Place& place, Found& found) {
    const std::string_view above = place.digits();
    std::size_t at = above.size();
    std::size_t length = 0;
    // "3½", "3 1/2"
    if (const char* words = fraction_at(place, at + (place.peek(at) == ' ' ? 1 : 0), length)) {
        say_cardinal(above, found.words);
        say("and", found.words);
        const std::string_view part = words;
        say(part.substr(0, 4) == "one " ? "a" : "", found.words);
        say(part.substr(0, 4) == "one " ? part.substr(4) : part, found.words);
        found.length = at + (place.peek(at) == ' ' ? 1 : 0) + length;
        return true;
    }
    if (place.peek(at) == ' ') {
        const std::string_view second = place.digits(at + 1);
        const std::size_t slash = at + 1 + second.size();
        const std::string_view below = place.digits(slash + 1);
        std::string words;
        say_cardinal(above, words);
        say("and", words);
        const bool is_mixed = !second.empty() && second.size() < 3 && place.peek(slash) == '/' &&
                              second < below && say_fraction(second, below, words);
        if (!is_mixed) return false;
        found.words = words;
        found.length = slash + 1 + below.size();
        return true;
    }
    if (place.peek(at) != '/') return false;
    const std::string_view below = place.digits(at + 1);
    if (place.peek(at + 1 + below.size()) == '/' || !say_fraction(above, below, found.words)) {
        return false;
    }
    found.length = at + 1 + below.size();
    return true;
}

// "221B": three digits and more before a letter are said one by one. They are what `found` has.
bool read_house_number(const Place& place, const Number& number, Found& found) {
    const std::size_t end = number.length;
    const bool is_one = number.whole.size() > 2 && number.whole.size() == end &&
                        is_upper(place.peek(end)) && !is_of_word(place.peek(end + 1)) &&
                        !is_digit(place.peek(end + 1));
    if (!is_one) return false;
    found.words.clear();
    say_digits(number.whole, found.words);
    found.length = end;
    return true;
}

}  // namespace

// "CO2", "BA249", "H2O", "SW3 4ND": capitals letter by letter; up to two digits as a number, more
// one by one.
void read_code(const Place& place, Found& found) {
    constexpr std::size_t LONGEST = 3;
    std::size_t end = 0;
    bool has_digits = false;
    for (std::size_t n_runs = 0; n_runs < LONGEST; ++n_runs) {
        const std::size_t n_letters = place.run(is_upper, end);
        const std::string_view digits = place.digits(end + n_letters);
        if (n_letters > LONGEST || digits.size() > LONGEST + 1 || (end == 0 && n_letters == 0))
            return;
        for (std::size_t i = 0; i < n_letters; ++i) say(place.part(end + i, 1), found.words);
        end += n_letters + digits.size();
        if (digits.empty()) break;
        has_digits = true;
        digits.size() < LONGEST ? say_cardinal(digits, found.words)
                                : say_digits(digits, found.words);
    }
    if (!has_digits || is_of_word(place.peek(end)) || is_digit(place.peek(end))) return;
    // The second half of a postcode.
    const bool has_half = place.peek(end) == ' ' && is_digit(place.peek(end + 1)) &&
                          place.run(is_upper, end + 2) == 2 && !is_of_word(place.peek(end + 4)) &&
                          !is_digit(place.peek(end + 4));
    if (has_half) {
        say_digits(place.part(end + 1, 1), found.words);
        say(place.part(end + 2, 1), found.words);
        say(place.part(end + 3, 1), found.words);
        end += 4;
    }
    found.length = end;
}

void read_number(const Place& place, Found& found) {
    const Number number = number_at(place.rest(0));
    std::size_t end = number.length;
    if (number.fraction.empty() && read_fraction(place, found)) return;
    if (const std::size_t suffix = suffix_length(place, end);
        suffix > 0 && number.fraction.empty()) {
        say_ordinal(number.whole, found.words);
        found.length = end + suffix;
        return;
    }
    const bool is_code =
        number.whole.size() > 1 && number.whole[0] == '0' && number.fraction.empty();
    is_code ? say_digits(number.whole, found.words) : number.say(found.words);
    if (read_house_number(place, number, found)) return;
    // "10-20", "3–2"
    if (const std::size_t dash = place.dash(end); dash > 0 && place.before() != '-') {
        const Number last = number_at(place.rest(end + dash));
        if (last.length > 0) {
            say("to", found.words);
            last.say(found.words);
            end += dash + last.length;
        }
    }
    const std::size_t blank = place.peek(end) == ' ' ? 1 : 0;
    if (place.peek(end + blank) == '%') {
        say("percent", found.words);
        end += blank + 1;
    }
    // "3x", "3 x 4", "3×4"
    if (place.peek(end) == 'x' && !is_of_word(place.peek(end + 1)) &&
        !is_digit(place.peek(end + 1))) {
        say("times", found.words);
        ++end;
    }
    const bool is_times = place.starts_with("\xc3\x97", end) ||
                          place.starts_with(" \xc3\x97 ", end) ||
                          (place.starts_with(" x ", end) && is_digit(place.peek(end + 3)));
    if (is_times) {
        say("times", found.words);
        end += place.peek(end) == ' ' ? (place.peek(end + 1) == 'x' ? 2 : 3) : 2;
    }
    found.length = end;
}

// "-5", "+3", "#5", "№ 5", "½", "&", "~5", "2²" and the like.
void read_sign(const Place& place, Found& found) {
    const char first = place.peek();
    if (!is_outside_ascii(first) && first != '-' && first != '#' && first != '~' && first != '+' &&
        first != '&') {
        return;
    }
    std::size_t length = 0;
    if (const char* words = fraction_at(place, 0, length)) {
        found.length = length;
        found.words = words;
        return;
    }
    constexpr WordsRow BEFORE_NUMBER[] = {{"-", "minus"},
                                          {"\xe2\x88\x92", "minus"},
                                          {"#", "number"},
                                          {"\xe2\x84\x96", "number"},
                                          {"~", "about"},
                                          {"+", "plus"},
                                          {"\xc2\xb1", "plus or minus"},
                                          {"\xe2\x89\x88", "about"},
                                          {"\xc2\xa7", "section"}};
    const char before = place.before();
    const bool may_begin =
        before == '\0' || before == ' ' || before == '(' || before == '\n' || before == ':';
    for (const WordsRow& row : BEFORE_NUMBER) {
        if (!place.starts_with(row.written) || !may_begin) continue;
        const std::size_t blank =
            place.peek(row.written.size()) == ' ' && row.written.size() > 1 ? 1 : 0;
        if (!is_digit(place.peek(row.written.size() + blank))) continue;
        found.length = row.written.size() + blank;
        found.words = std::string(row.spoken) + " ";
        return;
    }
    constexpr WordsRow ANYWHERE[] = {{"&", "and"},
                                     {"\xc3\x97", "times"},
                                     {"\xc2\xb2", "squared"},
                                     {"\xc2\xb3", "cubed"},
                                     {"\xc2\xb0", "degrees"},
                                     {"\xc2\xa9", "copyright"},
                                     {"\xe2\x82\xac", "euros"},
                                     {"\xc2\xa3", "pounds"},
                                     {"\xcf\x80", "pi"},
                                     {"\xc2\xb5", "micro"},
                                     {"\xe2\x84\xa2", "trademark"}};
    for (const WordsRow& row : ANYWHERE) {
        if (!place.starts_with(row.written)) continue;
        found.length = row.written.size();
        found.words = row.spoken;
        return;
    }
}

}  // namespace kavi::everyday
