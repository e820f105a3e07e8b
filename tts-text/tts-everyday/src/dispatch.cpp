#include "dispatch.h"

#include <array>
#include <iterator>

namespace kavi::everyday {

namespace {

// Sorts of bytes: small letters, capitals and digits are of one sort each, and so is all that is
// outside ASCII; any other byte is a sort of its own.
constexpr char SMALL = 'a';
constexpr char CAPITAL = 'A';
constexpr char DIGIT = '0';
constexpr char OUTSIDE = '\x7f';
constexpr std::size_t SORTS = 128;
constexpr char sort_of(char c) {
    if (is_lower(c)) return SMALL;
    if (is_upper(c)) return CAPITAL;
    if (is_digit(c)) return DIGIT;
    return is_outside_ascii(c) ? OUTSIDE : c;
}

// The sort of a blank after a word or a number, by the character after it; ' ' before a small
// letter.
constexpr char BEFORE_CAPITAL = 'Z';
constexpr char BEFORE_DIGIT = '9';
constexpr char BEFORE_MARK = 'z';
constexpr char sort_of_blank(char next) {
    switch (sort_of(next)) {
        case SMALL: return ' ';
        case CAPITAL: return BEFORE_CAPITAL;
        case DIGIT: return BEFORE_DIGIT;
        default: return BEFORE_MARK;
    }
}

struct RuleEntry {
    EverydayClass everyday_class;
    Rule rule;
    std::string_view begins;   // the sorts of the first byte
    std::string_view follows;  // of what may follow the first word or number; empty for any
};

// Where two rules could read the same, the first does. American dates are tried where the option
// says so. "a", "A" and "0" are a letter and a digit, "\x7f" is outside ASCII, and " ", "Z", "9"
// and "z" are blanks.
constexpr RuleEntry RULES[] = {
    {EverydayClass::addresses, read_telephone, "0+(", "-./9z"},
    {EverydayClass::addresses, read_address, "aA", ".@:-_+%0"},
    {EverydayClass::currencies, read_currency, "A$-\x7f", "$.09\x7f"},
    {EverydayClass::titles, read_scripture, "A", ".9"},
    {EverydayClass::titles, read_state, "A", ""},
    {EverydayClass::titles, read_title, "aA", "."},
    {EverydayClass::titles, read_bare_title, "aA", ", Z9z-\n\x7f"},
    {EverydayClass::titles, read_capitals, "A", ""},
    {EverydayClass::years, read_month, "aA", ".9"},
    {EverydayClass::years, read_date, "0", "-./ Za"},
    {EverydayClass::numbers, read_version, "0", "."},
    {EverydayClass::numbers, read_long_code, "0", "-a"},
    {EverydayClass::numbers, read_resolution, "0", "a"},
    {EverydayClass::times, read_time, "0", ":.- ZaA\x7f"},
    {EverydayClass::currencies, read_amount_after, "0", ".,-$ Z9zaA\x7f"},
    {EverydayClass::units, read_unit, "0.", ".,-+'\" Z9zaA\x7f"},
    {EverydayClass::units, read_rate, "/", ""},
    {EverydayClass::numbers, read_numbered, "0", ""},
    {EverydayClass::years, read_year, "0'\x7f", ""},
    {EverydayClass::numbers, read_plural_number, "0", "a,'\x7f"},
    {EverydayClass::numbers, read_number, "0", ""},
    {EverydayClass::numbers, read_point, ".", ""},
    {EverydayClass::roman, read_roman, "aA", ""},
    {EverydayClass::contractions, read_contraction, "aA'\x7f", "'\x7f"},
    {EverydayClass::numbers, read_code, "aA", "0"},
    {EverydayClass::numbers, read_sign, "-#~+&\x7f", ""},
    {EverydayClass::marks, read_slashed_words, "aA", "/"},
    {EverydayClass::marks, read_mark, "*<>|#+~/.-=!^$_\\\x7f", ""},
    {EverydayClass::marks, read_named_mark, "(\x7f", ""},
    {EverydayClass::shields, read_shield, ".", ""},
    {EverydayClass::letters, read_letters, "aA\x7f", "\x7f"},
    {EverydayClass::letters, read_typography, "\x7f", ""},
};
constexpr std::size_t N_RULES = std::size(RULES);
static_assert(N_RULES <= 32);

constexpr bool has(std::string_view sorts, char sort) {
    return sorts.find(sort) != std::string_view::npos;
}

constexpr bool begins_bare_title(char c) {
    for (const Row& row : TITLES) {
        if (is_bare_title(row) && row.written()[0] == c) return true;
    }
    return false;
}

// Whether a rule reads words that begin with a letter: most words in small letters are none of
// these.
constexpr bool may_begin(Rule rule, char c) {
    if (rule == read_bare_title) return begins_bare_title(c);
    if (rule == read_month) return !is_lower(c) || has("adfjmnos", c);
    if (rule == read_roman) return !is_lower(c) || has("ivx", c);
    return true;
}

template <std::size_t N, typename May>
constexpr std::array<RuleSet, N> rules_by(May may) {
    std::array<RuleSet, N> rules{};
    for (std::size_t byte = 0; byte < N; ++byte) {
        for (std::size_t i = 0; i < N_RULES; ++i) {
            if (may(RULES[i], static_cast<char>(byte))) rules[byte] |= RuleSet{1} << i;
        }
    }
    return rules;
}

constexpr auto BY_FIRST = rules_by<SORTS>([](const RuleEntry& entry, char c) {
    return has(entry.begins, sort_of(c)) && may_begin(entry.rule, c);
});
constexpr auto BY_FOLLOWING = rules_by<SORTS>([](const RuleEntry& entry, char sort) {
    return entry.follows.empty() || has(entry.follows, sort);
});

constexpr auto ROWS = [] {
    std::array<RuleRow, N_RULES> rows{};
    for (std::size_t i = 0; i < N_RULES; ++i) rows[i] = {RULES[i].everyday_class, RULES[i].rule};
    return rows;
}();

// Each row of a table must begin with a byte for which its rule is called.
constexpr bool begins_all(Rule rule, const Table& table) {
    for (const Row& row : table) {
        bool has_begin = false;
        for (const RuleEntry& entry : RULES) {
            has_begin =
                has_begin || (entry.rule == rule && has(entry.begins, sort_of(row.written()[0])));
        }
        if (!has_begin) return false;
    }
    return true;
}
static_assert(begins_all(read_sign, SIGNS) && begins_all(read_mark, OPERATORS));

RuleSet rules_after_sort(char sort) {
    return BY_FOLLOWING[static_cast<unsigned char>(sort)];
}

// Where the text ends with a blank, the rules themselves tell whether they need more of it.
RuleSet rules_after(std::string_view text, std::size_t end) {
    if (end == text.size()) return rules_after_sort('\n');
    if (text[end] != ' ') return rules_after_sort(sort_of(text[end]));
    if (end + 1 < text.size()) return rules_after_sort(sort_of_blank(text[end + 1]));
    return rules_after_sort(' ') | rules_after_sort(BEFORE_CAPITAL) |
           rules_after_sort(BEFORE_DIGIT) | rules_after_sort(BEFORE_MARK);
}

}  // namespace

const RuleRow* const ALL_RULES = ROWS.data();

Run run_at(std::string_view text, std::size_t at) {
    const char first = text[at];
    std::size_t end = at + 1;
    if (is_outside_ascii(first)) return {end, BY_FIRST[static_cast<unsigned char>(OUTSIDE)], false};
    const RuleSet rules = BY_FIRST[static_cast<unsigned char>(first)];
    if (is_letter(first)) {
        while (end < text.size() && is_letter(text[end])) ++end;
    } else if (is_digit(first)) {
        while (end < text.size() && is_digit(text[end])) ++end;
    } else {
        return {end, rules, false};
    }
    return {end, rules & rules_after(text, end), end == text.size()};
}

}  // namespace kavi::everyday
