// Number words, written by groups of three digits.

#include "number_words.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "../common/ascii.h"

namespace kavi::tn {

namespace {

// The three digits of a number below a thousand.
struct Digits {
    // `text` has at most three characters. A missing digit is '0', but the units of an empty text
    // are NUL, which has no word.
    explicit Digits(std::string_view text)
        : hundreds(text.size() == 3 ? text[0] : '0'),
          tens(text.size() >= 2 ? text[text.size() - 2] : '0'),
          units(!text.empty() ? text.back() : '\0') {}

    char hundreds;
    char tens;
    char units;
};

// The row of s_number_to_char for tens and units that have one word: below 20, or whole tens.
std::size_t row_of(char tens, char units) {
    constexpr std::size_t TEN = 10;
    constexpr std::size_t TWENTY = 20;
    const auto t = static_cast<std::size_t>(tens - '0');
    const auto u = static_cast<std::size_t>(units - '0');
    if (tens == '0') return u;
    return tens == '1' ? TEN + u : TWENTY + t - 2;
}

// The lengths of the words of a table, row by row.
template <std::size_t Rows, std::size_t Width>
constexpr auto lengths_of(const char (&table)[Rows][2][Width]) {
    std::array<unsigned char, Rows> lengths{};
    for (std::size_t row = 0; row < Rows; ++row) {
        lengths[row] = static_cast<unsigned char>(std::string_view(table[row][1]).size());
    }
    return lengths;
}

constexpr auto CARDINAL_LENGTHS = lengths_of(s_number_to_char);
constexpr auto ORDINAL_LENGTHS = lengths_of(s_number_to_turn);

std::string_view cardinal_word(std::size_t row) {
    return {s_number_to_char[row][1], CARDINAL_LENGTHS[row]};
}

// ---- Each writes words at `end`, where GROUP_MAX bytes are free, and returns their end ----

template <std::size_t Size>
char* put(char* end, const char (&words)[Size]) {
    std::memcpy(end, words, Size - 1);
    return end + Size - 1;
}

// A word of a table. The whole row is copied, since a copy of constant size is inlined.
template <std::size_t Size>
char* put_row(char* end, const char (&row)[Size], std::size_t length) {
    std::memcpy(end, row, Size);
    return end + length;
}

// The one word of tens and units; nothing when one of them is not a digit. Both tables have the
// same order, but the ordinals have no row for 0.
char* put_word(char* end, char tens, char units, bool ordinal) {
    if (!is_digit(tens) || !is_digit(units)) return end;
    const std::size_t row = row_of(tens, units);
    if (!ordinal) return put_row(end, s_number_to_char[row][1], CARDINAL_LENGTHS[row]);
    return put_row(end, s_number_to_turn[row - 1][1], ORDINAL_LENGTHS[row - 1]);
}

// A group as a cardinal or an ordinal: hundreds, " and ", then one word or two. Only the last word
// is an ordinal. «121» as an ordinal is "one hundred  and twenty first ".
char* put_group(char* end, std::string_view text, bool ordinal) {
    const Digits digits(text);
    const bool has_hundreds = digits.hundreds != '0';
    const bool has_units = digits.units != '0';
    if (has_hundreds) {
        end = put(put_word(end, '0', digits.hundreds, false), " hundred ");
        if (digits.tens != '0' || has_units) end = put(end, " and ");
    } else {
        end = put(end, " ");
    }
    if (digits.tens == '0' || digits.tens == '1') {
        if (digits.tens == '1' || has_units) {
            end = put_word(end, digits.tens, digits.units, ordinal);
        }
    } else {
        const bool ends_here = ordinal && !has_units;
        end = put_word(end, digits.tens, '0', ends_here);
        if (!ends_here) end = put(end, " ");
        if (has_units) end = put_word(end, '0', digits.units, ordinal);
    }
    return put(end, " ");
}

// Bytes that a group may write: more than its longest words and one row of a table.
constexpr std::size_t GROUP_MAX = 80;

// Appends a group where less than GROUP_MAX bytes are free: its words may be cut.
void append_last_group(std::string_view text, bool ordinal, Reading& reading) {
    char words[GROUP_MAX];
    const char* end = put_group(words, text, ordinal);
    reading.append({words, static_cast<std::size_t>(end - words)});
}

void append_group(std::string_view text, bool ordinal, Reading& reading) {
    if (!reading.has_room(GROUP_MAX)) return append_last_group(text, ordinal, reading);
    char* begin = reading.end();
    const char* end = put_group(begin, text, ordinal);
    reading.extend(static_cast<std::size_t>(end - begin));
}

// The length of the first group, the only one that may be shorter than three digits.
std::size_t first_group(std::size_t n_digits) {
    return n_digits % GROUP_DIGITS != 0 ? n_digits % GROUP_DIGITS
                                        : std::min(n_digits, GROUP_DIGITS);
}

// The number of groups that are read of a number with `n_digits` digits.
std::size_t groups_read(std::size_t n_digits) {
    return std::min((n_digits + GROUP_DIGITS - 1) / GROUP_DIGITS, GROUPS_MAX);
}

// Appends the first group and its scale word, and removes it from `digits`.
void take_group(std::string_view& digits, std::size_t groups_after, Reading& reading) {
    const std::size_t length = first_group(digits.size());
    append_group(digits.substr(0, length), false, reading);
    if (groups_after > 0) reading.append(scale_word(groups_after));
    digits.remove_prefix(length);
}

// Appends the groups of a number that are read, except the last `n_left` of them.
void append_groups(std::string_view digits, std::size_t n_left, Reading& reading) {
    const std::string_view all = digits;
    for (std::size_t n = groups_read(digits.size()); n > n_left; --n) {
        take_group(digits, n - 1, reading);
    }
    reading.note_digits(all.substr(0, all.size() - digits.size()));
}

}  // namespace

int value_of(std::string_view text) {
    constexpr int BASE = 10;
    constexpr int ENOUGH = 9999;
    int value = 0;
    for (const char c : text) {
        if (!is_digit(c) || value > ENOUGH) break;
        value = value * BASE + (c - '0');
    }
    return value;
}

std::string_view scale_word(std::size_t groups_after) {
    constexpr std::string_view SCALES[GROUPS_MAX - 1] = {" thousand ", " million ", " billion "};
    return SCALES[groups_after - 1];
}

void append_cardinal(std::string_view digits, Reading& reading) {
    const std::string_view group = digits.substr(0, GROUP_DIGITS);
    reading.note_digits(group);
    append_group(group, false, reading);
}

bool append_ordinal(std::string_view digits, Reading& reading) {
    if (digits.empty() || digits.size() > GROUP_DIGITS) return false;
    reading.note_digits(digits);
    append_group(digits, true, reading);
    return true;
}

void append_number(std::string_view digits, Reading& reading) {
    if (!digits.empty() && digits.size() <= GROUP_DIGITS) {
        append_cardinal(digits, reading);
        return;
    }
    append_groups(digits, 0, reading);
}

void append_ordinal_number(std::string_view digits, Reading& reading) {
    append_groups(digits, 1, reading);
    append_ordinal(digits.substr(digits.size() - std::min(digits.size(), GROUP_DIGITS)), reading);
}

void append_each_digit(std::string_view digits, Reading& reading) {
    constexpr std::size_t NO_DIGIT = 28;
    reading.note_digits(digits);
    for (const char c : digits) {
        const std::size_t row = is_digit(c) ? static_cast<std::size_t>(c - '0') : NO_DIGIT;
        reading.append(cardinal_word(row));
        reading.append(" ");
    }
}

}  // namespace kavi::tn
