#include "spoken_numbers.h"

#include <algorithm>

#include "for_everyday.h"
#include "post_pro_tn_eng.h"

namespace kavi::everyday {

namespace {

// Words of the engine's operations have blanks of their own.
void say_reading(const tn::Reading& reading, std::string& out) {
    char words[WORD_MAX_LEN];
    std::size_t length = 0;
    char last = ' ';
    for (const char c : reading.text()) {
        words[length] = c;
        if (c != ' ' || last != ' ') ++length;
        last = c;
    }
    if (length > 0 && words[length - 1] == ' ') --length;
    say({words, length}, out);
}

// By the first two letters, in any case.
constexpr std::uint64_t bit_of_begin(std::string_view name) {
    const char begin[] = {to_lower(name[0]), to_lower(name[1])};
    return bit_of_pair({begin, 2});
}

// Those of the months: most other words have none of them.
constexpr std::uint64_t MONTH_BEGINS = [] {
    std::uint64_t begins = 0;
    for (const auto& row : s_string_to_month) begins |= bit_of_begin(row[1]);
    return begins;
}();

constexpr std::size_t GROUP = 3;

// The length of the groups of three digits at `ahead`, each after such a mark. After a blank there
// may be a row of numbers, which is not looked through from each of them.
std::size_t run_of_groups(const Cursor& cursor, std::size_t ahead, char mark) {
    constexpr std::size_t LONGEST_WITH_BLANKS = 4 * (1 + GROUP);
    const std::size_t longest = mark == ',' ? LOOK_AHEAD : LONGEST_WITH_BLANKS;
    std::size_t length = 0;
    while (length < longest && cursor.peek(ahead + length) == mark &&
           cursor.digits(ahead + length + 1).size() == GROUP)
        length += 1 + GROUP;
    return length;
}

// The length of the groups after the first digits of a number with lakhs: "1,21,08,977"; 0 if none.
std::size_t groups_of_lakhs(const Cursor& cursor, std::size_t ahead) {
    constexpr std::size_t PAIR = 2;
    constexpr std::size_t LONGEST = 4 * (1 + PAIR);
    std::size_t length = 0;
    while (length < LONGEST && cursor.peek(ahead + length) == ',' &&
           cursor.digits(ahead + length + 1).size() == PAIR)
        length += 1 + PAIR;
    const bool has_end = length > 0 && cursor.peek(ahead + length) == ',' &&
                         cursor.digits(ahead + length + 1).size() == GROUP;
    return has_end ? length + 1 + GROUP : 0;
}

// Whether a word may precede a number that has blanks in it: no month and no name, "May 12 200
// people", "Windows 10 100 times", nor another number.
bool may_precede_blanks(const Cursor& cursor, std::size_t ahead) {
    if (ahead > 0) return true;
    const char before = cursor.before();
    if (before == '-' || before == '.' || (before == ' ' && is_digit(cursor.before(2))))
        return false;
    const std::string_view word = cursor.word_before();
    return std::none_of(word.begin(), word.end(), is_upper);
}

// "10 000", "1 234 567"; not "rooms 101 102", "5 100 metre races", "555 123 4567".
bool are_blanks_of_number(const Cursor& cursor, std::size_t ahead, std::size_t n_digits,
                          std::size_t groups) {
    const std::size_t end = ahead + n_digits + groups;
    const char after = cursor.peek(end);
    const bool goes_on = cursor.is_joined(end) || after == '-' || after == '/' || after == ':' ||
                         (after == ' ' && is_digit(cursor.peek(end + 1)));
    const bool is_round = cursor.part(end - GROUP, GROUP) == "000";
    const bool is_clear = n_digits == 2 || (n_digits == 1 && groups > 1 + GROUP);
    return cursor.peek(ahead) != '0' && !goes_on && (is_round || is_clear) &&
           may_precede_blanks(cursor, ahead);
}

// "1.000.000"; four groups may be an address.
bool are_points_of_number(const Cursor& cursor, std::size_t end, std::size_t groups) {
    const bool goes_on = cursor.peek(end) == '.' && is_digit(cursor.peek(end + 1));
    return groups == 2 * (1 + GROUP) && !cursor.is_joined(end) && !goes_on;
}

// The length of the groups after the first digits of a number, one to three at `ahead`, of which
// the first is after `mark`.
std::size_t groups_length(const Cursor& cursor, std::size_t ahead, std::size_t n_digits,
                          char mark) {
    const std::size_t begin = ahead + n_digits;
    const std::size_t groups = run_of_groups(cursor, begin, mark);
    if (groups == 0) return mark == ',' ? groups_of_lakhs(cursor, begin) : 0;
    if (mark == ' ' && !are_blanks_of_number(cursor, ahead, n_digits, groups)) return 0;
    if (mark == '.' && !are_points_of_number(cursor, begin + groups, groups)) return 0;
    return groups;
}

}  // namespace

void say(std::string_view words, std::string& out) {
    if (!out.empty() && out.back() != ' ') out += ' ';
    out += words;
}

void say_cardinal(std::string_view digits, std::string& out) {
    constexpr std::size_t LONGEST = 12;
    digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
    if (digits.empty()) return say("zero", out);
    if (digits.size() > LONGEST) return say_digits(digits, out);
    char buffer[WORD_MAX_LEN];
    tn::Reading reading(buffer, 0);
    // A group of zeros has no words, not even its scale.
    while (!digits.empty()) {
        const std::size_t groups_after = (digits.size() - 1) / tn::GROUP_DIGITS;
        const std::size_t length = digits.size() - groups_after * tn::GROUP_DIGITS;
        const std::string_view group = digits.substr(0, length);
        if (group.find_first_not_of('0') != std::string_view::npos) {
            tn::append_cardinal(group, reading);
            if (groups_after > 0) reading.append(tn::scale_word(groups_after));
        }
        digits.remove_prefix(length);
    }
    say_reading(reading, out);
}

void say_ordinal(std::string_view digits, std::string& out) {
    say_cardinal(digits, out);
    const std::size_t begin = out.rfind(' ') + 1;
    const std::string last = out.substr(begin);
    if (const Row* row = find(ORDINALS, last)) {
        out.replace(begin, last.size(), row->spoken());
        return;
    }
    if (out.back() == 'y') out.replace(out.size() - 1, 1, "ie");
    out += "th";
}

void say_digits(std::string_view digits, std::string& out) {
    for (const char c : digits) say(s_number_to_char[c - '0'][1], out);
}

void say_in_pairs(std::string_view digits, std::string& out) {
    constexpr std::size_t LONGEST = 4;
    if (digits.size() < 3) return say_cardinal(digits, out);
    if (digits.size() > LONGEST || digits[0] == '0') return say_digits(digits, out);
    const std::string_view first = digits.substr(0, digits.size() - 2);
    const std::string_view last = digits.substr(digits.size() - 2);
    if (last == "00" && first.back() == '0') return say_cardinal(digits, out);
    say_cardinal(first, out);
    if (last == "00") return say("hundred", out);
    if (last[0] == '0') say("oh", out);
    say_cardinal(last, out);
}

void say_year(std::string_view year, std::string& out) {
    const std::string_view century = year.substr(0, 2);
    const std::string_view rest = year.substr(2);
    if (year.substr(1, 2) == "00") return say_cardinal(year, out);
    say_cardinal(century, out);
    if (rest == "00") return say("hundred", out);
    if (rest[0] == '0') say("oh", out);
    say_cardinal(rest, out);
}

void say_decimal(std::string_view whole, std::string_view fraction, std::string& out) {
    say_cardinal(whole, out);
    if (fraction.empty()) return;
    say("point", out);
    say_digits(fraction, out);
}

std::string Number::digits() const {
    std::string digits(whole);
    digits.erase(std::remove_if(digits.begin(), digits.end(), [](char c) { return !is_digit(c); }),
                 digits.end());
    return digits;
}

Number number_at(const Cursor& cursor, std::size_t ahead) {
    const std::size_t n_digits = cursor.digits(ahead).size();
    std::size_t end = ahead + n_digits;
    const char mark = cursor.peek(end);
    const bool goes_on =
        (mark == ',' || mark == '.' || mark == ' ') && is_digit(cursor.peek(end + 1));
    if (!goes_on) return {cursor.part(ahead, n_digits), {}, n_digits};
    if (n_digits == 0 && mark != '.') return {};  // but ".35"
    if (n_digits > 0 && n_digits <= GROUP) end += groups_length(cursor, ahead, n_digits, mark);
    const std::string_view whole = cursor.part(ahead, end - ahead);
    if (cursor.peek(end) != '.' || !is_digit(cursor.peek(end + 1))) return {whole, {}, end - ahead};
    const std::string_view fraction = cursor.digits(end + 1);
    return {whole, fraction, whole.size() + 1 + fraction.size()};
}

int month_number(std::string_view name) {
    constexpr std::size_t SHORTEST = 3;
    if (name.size() < SHORTEST || (bit_of_begin(name) & MONTH_BEGINS) == 0) return 0;
    if (name == "may" || name == "mar" || name == "march") return 0;
    const auto is_alike = [](char a, char b) { return to_lower(a) == to_lower(b); };
    for (int i = 0; i < 12; ++i) {
        const auto& [abbreviation, month] = s_string_to_month[i];
        if (!std::equal(name.begin(), name.end(), month, is_alike)) continue;
        const bool is_whole = month[name.size()] == '\0';
        if (is_whole || name.size() == SHORTEST ||
            name.size() == std::string_view(abbreviation).size())
            return i + 1;
    }
    return 0;
}

const char* month_word(int number) {
    return s_string_to_month[number - 1][1];
}

}  // namespace kavi::everyday
