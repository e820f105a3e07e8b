#include "months.h"

#include "../common/ascii.h"
#include "../common/word_table.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

namespace {

// A bit for each letter that an abbreviation begins with, from A on; the names begin alike.
constexpr unsigned make_initials() {
    unsigned initials = 0;
    for (const auto& row : s_string_to_month) initials |= 1U << (row[0][0] - 'A');
    return initials;
}

constexpr unsigned INITIALS = make_initials();

}  // namespace

// Most words are answered by their first character.
const char* month_name(std::string_view text) {
    if (text.empty()) return nullptr;
    if (is_digit(text[0])) return find_word(s_number_to_month, text);
    if (!is_upper(text[0]) || (INITIALS >> (text[0] - 'A') & 1U) == 0) return nullptr;
    if (const char* name = find_word(s_string_to_month, text)) return name;
    for (const auto& row : s_string_to_month) {
        if (row[1][0] == text[0] && text == row[1]) return row[1];
    }
    return nullptr;
}

}  // namespace kavi::tn
