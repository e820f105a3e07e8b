// Abbreviations such as "Dr." and "e.g.": full stops that do not end a sentence.

#include "abbreviation.h"

#include <array>
#include <cstring>

#include "../common/ascii.h"
#include "../common/bounded_text.h"
#include "kavi_compiler.h"

namespace kavi {

namespace tn {

namespace {

constexpr std::size_t offset_of_dot(const char* abbreviation) {
    std::size_t offset = 0;
    while (abbreviation[offset] != '.') ++offset;
    return offset;
}

constexpr auto make_dot_offsets() {
    std::array<unsigned char, ABBREVIATIONNUMBER> offsets{};
    for (std::size_t row = 0; row < ABBREVIATIONNUMBER; ++row) {
        offsets[row] = static_cast<unsigned char>(offset_of_dot(s_spec_word_abbrevi[row][0]));
    }
    return offsets;
}

constexpr auto DOT_OFFSETS = make_dot_offsets();

}  // namespace

std::size_t dot_offset(int row) {
    return DOT_OFFSETS[static_cast<std::size_t>(row)];
}

namespace {

constexpr auto make_rows_ending_in() {
    std::array<unsigned, 26> rows{};
    for (std::size_t row = 0; row < ABBREVIATIONNUMBER; ++row) {
        const char* abbreviation = s_spec_word_abbrevi[row][0];
        const char last = to_lower(abbreviation[DOT_OFFSETS[row] - 1]);
        rows[static_cast<std::size_t>(last - 'a')] |= 1U << row;
    }
    return rows;
}

// For each letter, a bit for every row that has it, in either case, before its first ".".
constexpr auto ROWS_ENDING_IN = make_rows_ending_in();

unsigned rows_ending_in(char c) {
    return is_letter(c) ? ROWS_ENDING_IN[static_cast<std::size_t>(to_lower(c) - 'a')] : 0;
}

char in_case_form(const char* abbreviation, int i, std::size_t form) {
    const char c = abbreviation[i];
    switch (form) {
        case 0: return c;
        case 1: return to_lower(c);
        case 2: return i == 0 ? to_upper(c) : to_lower(c);
        default: return to_upper(c);
    }
}

bool has_case_form(const char* text, const char* abbreviation, std::size_t form) {
    for (int i = 0; abbreviation[i] != '\0'; ++i) {
        if (text[i] != in_case_form(abbreviation, i, form)) return false;
    }
    return true;
}

// Whether the abbreviation of a row fits between `stretch` and `dot` and has its first letter
// there, in either case. This rejects most texts that only end like it.
bool begins_alike(int row, const char* stretch, const char* dot) {
    const auto offset = static_cast<std::ptrdiff_t>(dot_offset(row));
    return dot - stretch >= offset &&
           to_lower(dot[-offset]) == to_lower(s_spec_word_abbrevi[row][0][0]);
}

}  // namespace

// The rule: the first case form that occurs anywhere from `stretch` on is the one that is replaced.
// So the form before `dot` is accepted only if no earlier form occurs from `stretch` on.
bool AbbreviationSearch::is_accepted(int row, const char* stretch, const char* dot) {
    const char* abbreviation = s_spec_word_abbrevi[row][0];
    std::size_t form = 0;
    while (form < CASE_FORMS && !has_case_form(dot - dot_offset(row), abbreviation, form)) ++form;
    if (form == CASE_FORMS) return false;
    while (form-- > 0) {
        char needle[sizeof s_spec_word_abbrevi[0][0]] = {};
        for (int i = 0; abbreviation[i] != '\0'; ++i) {
            needle[i] = in_case_form(abbreviation, i, form);
        }
        if (!ahead_) ahead_.emplace();
        if ((*ahead_)[static_cast<std::size_t>(row) * CASE_FORMS + form].find(stretch, needle) !=
            nullptr)
            return false;
    }
    return true;
}

int AbbreviationSearch::find(const char* stretch, const char* dot) {
    for (unsigned rows = dot > stretch ? rows_ending_in(dot[-1]) : 0; rows != 0; rows &= rows - 1) {
        const int row = lowest_bit(rows);
        if (begins_alike(row, stretch, dot) && is_accepted(row, stretch, dot)) return row;
    }
    return NO_ABBREVIATION;
}

}  // namespace tn

char* PostProTnEng::abbreviation(char* sz_source_text, char* sz_target, char* c_stop) {
    tn::BoundedText target(sz_target, SZ_TEXT_MAX_LEN);
    char* dot = std::strchr(sz_source_text, '.');
    const int row =
        dot != nullptr ? tn::AbbreviationSearch().find(sz_source_text, dot) : tn::NO_ABBREVIATION;
    if (row == tn::NO_ABBREVIATION) {
        *c_stop = 1;
        if (target.ends_with('.')) target.cut(1);
        return nullptr;
    }
    const auto& [written, expansion] = s_spec_word_abbrevi[row];
    target.cut(static_cast<int>(tn::dot_offset(row)) + 1);
    if (!target.append(expansion) || !target.append(" ")) return nullptr;
    return dot - tn::dot_offset(row) + std::strlen(written);
}

}  // namespace kavi
