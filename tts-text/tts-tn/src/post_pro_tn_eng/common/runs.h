// Runs of characters, by which the scans move: a look-up for each, and eight at a time over words.
#ifndef KAVI_TN_RUNS_H
#define KAVI_TN_RUNS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "ascii.h"

namespace kavi::tn {

// What a run is made of, a bit for each. No run goes past the end of a text.
enum Run : unsigned char {
    LETTERS = 1,
    DIGITS = 2,
    COPIED = 4,  // what needs no decision of the pre-pass
};

constexpr unsigned runs_of(char c) {
    if (c == '\0') return 0;
    unsigned runs = 0;
    if (is_letter(c)) runs |= LETTERS;
    if (is_digit(c)) runs |= DIGITS;
    if (c != ':' && c != '.' && c != '<' && c != '?' && c != ';' && c != '!' && c != ',') {
        runs |= COPIED;
    }
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

constexpr bool belongs_to(Run run, char c) {
    return (RUNS[static_cast<unsigned char>(c)] & run) != 0;
}

// The first character from `text` on that does not belong to the run.
constexpr const char* skip(Run run, const char* text) {
    while (belongs_to(run, *text)) ++text;
    return text;
}

// ---- Eight at a time: most words end within the first eight characters, so that a processor
// foresees how the search for their end goes, which it cannot when each character is a branch. ----

using Eight = std::uint64_t;  // eight characters, the first in the lowest byte
constexpr Eight EACH = 0x0101010101010101;

constexpr Eight eight_of(const char* text) {
    const auto at = [=](int i) { return Eight{static_cast<unsigned char>(text[i])} << (8 * i); };
    return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);  // one load, compiled
}

// Where no eight characters of a text begin any more.
inline const char* eights_end(const char* text, const char* text_end) {
    return text_end - text >= 8 ? text_end - 7 : text;
}

// The top bit of each up to the first that is no small letter and no blank, or a blank after a
// blank, and of that; what comes after it is of no use, since sums may carry into it. `no_blanks`
// is set for the next eight.
constexpr Eight no_small_words(Eight c, Eight& no_blanks) {
    const Eight from_blank = c ^ EACH * ' ';  // 0 for a blank, capitals for small letters
    const Eight no_blank = from_blank + EACH * 0x7f;
    const Eight no_letter =
        ~(from_blank + EACH * (0x80 - 'A')) | (from_blank + EACH * (0x7f - 'Z'));
    const Eight one_blank = no_blank | no_blank << 8 | no_blanks;
    no_blanks = no_blank >> 56;
    return ((no_letter & no_blank) | from_blank | ~one_blank) & EACH * 0x80;
}

// A bit of each from "!" to "?", as is all that needs a decision of the pre-pass, and of some
// others.
constexpr Eight maybe_not_copied(Eight c) {
    const Eight no_blank = (c & EACH * 0x1f) + EACH * 0x1f;
    return no_blank & ~c >> 1 & EACH * 0x20;
}

// Of such bits, those of digits are 0 here: a number would be looked up digit by digit.
constexpr Eight no_digit(Eight c) {
    const Eight from_colon = (c & EACH * 0x1f) + EACH * ('@' - ':');
    return from_colon | ~c << 1;
}

// Which of the eight the first marked one is.
inline std::size_t first_of(Eight marked) {
    return static_cast<unsigned>(__builtin_ctzll(marked)) / 8;
}

// Copies small letters, and a blank after each run of them, to the same places of `target`, from
// `at` on, after a letter, and up to `limit`. Where they end; what comes after them
// may be copied too.
inline std::ptrdiff_t copy_small_words(const char* text, std::ptrdiff_t at, std::ptrdiff_t limit,
                                       char* target) {
    Eight no_blanks = 0x80;
    for (; at + 8 <= limit; at += 8) {
        const Eight marked = no_small_words(eight_of(text + at), no_blanks);
        std::memcpy(target + at, text + at, 8);
        if (marked != 0) return at + static_cast<std::ptrdiff_t>(first_of(marked));
    }
    while (at < limit && (is_lower(text[at]) || (text[at] == ' ' && text[at - 1] != ' '))) {
        target[at] = text[at];
        ++at;
    }
    return at;
}

inline const char* skip_copied(const char* text, const char* text_end) {
    for (const char* const end = eights_end(text, text_end); text < end; text += 8) {
        const Eight eight = eight_of(text);
        Eight marked = maybe_not_copied(eight);
        if (marked == 0) continue;
        for (marked &= no_digit(eight); marked != 0; marked &= marked - 1) {
            const char* at = text + first_of(marked);
            if (!belongs_to(COPIED, *at)) return at;
        }
    }
    return skip(COPIED, text);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_RUNS_H
