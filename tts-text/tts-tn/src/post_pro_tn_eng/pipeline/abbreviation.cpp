// "Dr.", "e.g." and the like: full stops that end no sentence.

#include "abbreviation.h"

#include <array>
#include <cstring>
#include <string_view>

#include "../common/ascii.h"

namespace kavi {

namespace tn {

namespace {

constexpr int dot_offset(const char* abbreviation) {
    int offset = 0;
    while (abbreviation[offset] != '.') ++offset;
    return offset;
}

constexpr auto make_dot_offsets() {
    std::array<int, ABBREVIATIONNUMBER> offsets{};
    for (std::size_t row = 0; row < offsets.size(); ++row) {
        offsets[row] = dot_offset(s_spec_word_abbrevi[row][0]);
    }
    return offsets;
}

// Where the first "." stands in each abbreviation.
constexpr auto DOT_OFFSETS = make_dot_offsets();

char in_case_form(const char* abbreviation, int i, int form) {
    const char c = abbreviation[i];
    switch (form) {
        case 0: return c;
        case 1: return to_lower(c);
        case 2: return i == 0 ? to_upper(c) : to_lower(c);
        default: return to_upper(c);
    }
}

bool has_case_form(const char* text, const char* abbreviation, int form) {
    for (int i = 0; abbreviation[i] != '\0'; ++i) {
        if (text[i] != in_case_form(abbreviation, i, form)) return false;
    }
    return true;
}

}  // namespace

// The case form that occurs at the full stop counts only when no form tried before it occurs
// anywhere in the rest of the text: the first form that occurs is taken, wherever that is.
bool AbbreviationSearch::is_accepted(int row, const char* stretch, const char* dot) {
    const char* abbreviation = s_spec_word_abbrevi[row][0];
    const int offset = DOT_OFFSETS[static_cast<std::size_t>(row)];
    if (dot - stretch < offset) return false;
    if (to_lower(dot[-1]) != to_lower(abbreviation[offset - 1]))
        return false;  // most rows end here
    for (int form = 0; form < CASE_FORMS; ++form) {
        if (has_case_form(dot - offset, abbreviation, form)) return true;
        char needle[sizeof s_spec_word_abbrevi[0][0]] = {};
        for (int i = 0; abbreviation[i] != '\0'; ++i) {
            needle[i] = in_case_form(abbreviation, i, form);
        }
        if (ahead_[row][form].find(stretch, needle) != nullptr) return false;
    }
    return false;
}

char* AbbreviationSearch::expand(char* stretch, const char* dot, BoundedText& target, char& stop) {
    for (int row = 0; row < ABBREVIATIONNUMBER; ++row) {
        if (!is_accepted(row, stretch, dot)) continue;
        const int offset = DOT_OFFSETS[static_cast<std::size_t>(row)];
        target.cut(offset + 1);
        if (!target.append(s_spec_word_abbrevi[row][1]) || !target.append(" ")) return nullptr;
        return stretch + (dot - stretch) - offset + std::strlen(s_spec_word_abbrevi[row][0]);
    }
    stop = 1;
    if (target.ends_with('.')) target.cut(1);
    return nullptr;
}

}  // namespace tn

char* PostProTnEng::abbreviation(char* sz_source_text, char* sz_target, char* c_stop) {
    tn::BoundedText target(sz_target, SZ_TEXT_MAX_LEN);
    const char* dot = std::strchr(sz_source_text, '.');
    if (dot == nullptr) dot = sz_source_text;  // no abbreviation ends before its own beginning
    return tn::AbbreviationSearch().expand(sz_source_text, dot, target, *c_stop);
}

}  // namespace kavi
