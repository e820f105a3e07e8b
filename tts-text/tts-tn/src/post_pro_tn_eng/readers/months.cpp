// Recognising months.

#include "months.h"

#include "../common/ascii.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

namespace {

// The first letters of the abbreviations, and so of the names: bit 0 for "A".
constexpr unsigned make_initials() {
    unsigned initials = 0;
    for (const auto& row : s_string_to_month) initials |= 1U << (row[0][0] - 'A');
    return initials;
}

constexpr unsigned INITIALS = make_initials();

}  // namespace

int month_number(std::string_view text) {
    constexpr int BASE = 10;
    constexpr int MONTHS = 12;
    if (text.size() > 2 || !is_digit(text.back())) return 0;
    const int tens = text.size() == 2 ? text[0] - '0' : 0;
    const int value = tens * BASE + (text.back() - '0');
    return value <= MONTHS ? value : 0;
}

// Rows 0 to 11 of s_number_to_month are the months 1 to 12. Most words are rejected by their first
// character.
const char* month_name(std::string_view text) {
    if (text.empty()) return nullptr;
    if (is_digit(text[0])) {
        const int number = month_number(text);
        return number > 0 ? s_number_to_month[number - 1][1] : nullptr;
    }
    if (!is_upper(text[0]) || (INITIALS >> (text[0] - 'A') & 1U) == 0) return nullptr;
    for (const auto& row : s_string_to_month) {
        if (row[0][0] == text[0] && text == row[0]) return row[1];
    }
    for (const auto& row : s_string_to_month) {
        if (row[1][0] == text[0] && text == row[1]) return row[1];
    }
    return nullptr;
}

}  // namespace kavi::tn
