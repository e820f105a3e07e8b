// Character classes. ASCII only, whatever the locale and the signedness of char.
#ifndef KAVI_TN_ASCII_H
#define KAVI_TN_ASCII_H

#include <array>

namespace kavi::tn {

constexpr bool is_digit(char c) {
    return c >= '0' && c <= '9';
}
constexpr bool is_upper(char c) {
    return c >= 'A' && c <= 'Z';
}
constexpr bool is_lower(char c) {
    return c >= 'a' && c <= 'z';
}
constexpr bool is_letter(char c) {
    return is_upper(c) || is_lower(c);
}
constexpr char to_lower(char c) {
    return is_upper(c) ? static_cast<char>(c - 'A' + 'a') : c;
}
constexpr char to_upper(char c) {
    return is_lower(c) ? static_cast<char>(c - 'a' + 'A') : c;
}

// The runs by which the scans move, a bit for each. No run goes past the end of a text.
enum Run : unsigned char {
    LETTERS = 1,
    DIGITS = 2,
    COPIED = 4,   // needs no decision of the pre-pass
    OF_WORD = 8,  // part of a word of tagged text, whatever stands around it
};

constexpr unsigned runs_of(char c) {
    if (c == '\0') return 0;
    unsigned runs = 0;
    if (is_letter(c)) runs |= LETTERS;
    if (is_digit(c)) runs |= DIGITS;
    if (c != ':' && c != '.' && c != '<' && c != '?' && c != ';' && c != '!' && c != ',') {
        runs |= COPIED;
    }
    if (c != ' ' && c != '<') runs |= OF_WORD;
    return runs;
}

constexpr auto make_runs() {
    std::array<unsigned char, 256> runs{};
    for (unsigned c = 0; c < runs.size(); ++c) {
        runs[c] = static_cast<unsigned char>(runs_of(static_cast<char>(c)));
    }
    return runs;
}

inline constexpr auto RUNS = make_runs();

// Whether the character belongs to the run: one look-up, so a scan costs that for each byte.
constexpr bool belongs_to(Run run, char c) {
    return (RUNS[static_cast<unsigned char>(c)] & run) != 0;
}

// The first character from `text` on that does not belong to the run.
constexpr const char* skip(Run run, const char* text) {
    while (belongs_to(run, *text)) ++text;
    return text;
}

// Whether the text is nothing but digits; the empty text is.
constexpr bool is_digits(const char* text) {
    return *skip(DIGITS, text) == '\0';
}

}  // namespace kavi::tn

#endif  // KAVI_TN_ASCII_H
