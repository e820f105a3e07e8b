#include "number_words.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "../common/ascii.h"

namespace kavi::tn {

namespace {

// The three digits of a number below a thousand.
struct Digits {
    // Of at most three characters. What is not there counts as zero, but for the units of an empty
    // text, which have no word.
    explicit Digits(std::string_view text)
        : hundreds(text.size() == 3 ? text[0] : '0'),
          tens(text.size() >= 2 ? text[text.size() - 2] : '0'),
          units(!text.empty() ? text.back() : '\0') {}

    char hundreds;
    char tens;
    char units;
};

// The row of s_number_to_char for tens and units that have one word; 0 for what is no digit.
std::size_t row_of(char tens, char units) {
    constexpr std::size_t TEN = 10;
    constexpr std::size_t TWENTY = 20;
    const auto t = static_cast<std::size_t>(tens - '0');
    const auto u = static_cast<std::size_t>(units - '0');
    if (tens == '0') return u;
    return tens == '1' ? TEN + u : TWENTY + t - 2;
}

// How long the words of a table are, row by row.
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

// ---- Each writes words to `end` and returns where they end ----

template <std::size_t Size>
char* put(char* end, const char (&words)[Size]) {
    std::memcpy(end, words, Size - 1);
    return end + Size - 1;
}

// A word of a table. All of its row is copied: a copy whose length is known is short.
template <std::size_t Size>
char* put_row(char* end, const char (&row)[Size], std::size_t length) {
    std::memcpy(end, row, Size);
    return end + length;
}

// The word that tens and units have; none for what is no digit. The tables have the same order, but
// ordinals no row for 0.
char* put_word(char* end, char tens, char units, bool ordinal) {
    if (!is_digit(tens) || !is_digit(units)) return end;
    const std::size_t row = row_of(tens, units);
    if (!ordinal) return put_row(end, s_number_to_char[row][1], CARDINAL_LENGTHS[row]);
    return put_row(end, s_number_to_turn[row - 1][1], ORDINAL_LENGTHS[row - 1]);
}

// The frame that cardinals and ordinals have in common: hundreds, then " and ", then one word or
// two, of which the last is an ordinal or not.
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

constexpr std::size_t GROUP_MAX = 80;  // "seventeen hundred  and seventy seventeenth " and a row

// Where there may be no room for all of the words.
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

// The length of the first of the groups, of which only that may be short.
std::size_t first_group(std::size_t n_digits) {
    return n_digits % GROUP_DIGITS != 0 ? n_digits % GROUP_DIGITS
                                        : std::min(n_digits, GROUP_DIGITS);
}

// The number of groups that are read.
std::size_t groups_read(std::size_t n_digits) {
    return std::min((n_digits + GROUP_DIGITS - 1) / GROUP_DIGITS, GROUPS_MAX);
}

// Reads and removes the first group, with the scale word that `groups_after` gives it.
void take_group(std::string_view& digits, std::size_t groups_after, Reading& reading) {
    const std::size_t length = first_group(digits.size());
    append_group(digits.substr(0, length), false, reading);
    if (groups_after > 0) reading.append(scale_word(groups_after));
    digits.remove_prefix(length);
}

// Reads a number group by group, but for the last `n_left` of those that are read.
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
