// Runs of characters, by which the scans move: a look-up for each, and eight at a time over words.
#ifndef KAVI_TN_RUNS_H
#define KAVI_TN_RUNS_H

#include <array>
#include <cstdint>

#include "ascii.h"

namespace kavi::tn {

// What a run is made of, a bit for each. No run goes past the end of a text.
enum Run : unsigned char {
    LETTERS = 1,
    DIGITS = 2,
    COPIED = 4,   // what needs no decision of the pre-pass
    OF_WORD = 8,  // what makes words of tagged text
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

constexpr bool belongs_to(Run run, char c) {
    return (RUNS[static_cast<unsigned char>(c)] & run) != 0;
}

// The first character from `text` on that does not belong to the run.
constexpr const char* skip(Run run, const char* text) {
    for (;; text += 4) {
        if (!belongs_to(run, text[0])) return text;
        if (!belongs_to(run, text[1])) return text + 1;
        if (!belongs_to(run, text[2])) return text + 2;
        if (!belongs_to(run, text[3])) return text + 3;
    }
}

// ---- Eight at a time: most words end within the first eight characters, so that a processor
// foresees how the search for their end goes, which it cannot when each character is a branch. ----

using Eight = std::uint64_t;  // eight characters, the first in the lowest byte
constexpr Eight EACH = 0x0101010101010101;

constexpr Eight eight_of(const char* text) {
    const auto at = [=](int i) { return Eight{static_cast<unsigned char>(text[i])} << (8 * i); };
    return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);  // one load, compiled
}

// The top bit of each that is no letter.
constexpr Eight no_letters(Eight c) {
    const Eight lower = (c | EACH * 0x20) & EACH * 0x7f;
    const Eight from_a = lower + EACH * (0x80 - 'a');
    const Eight above_z = lower + EACH * (0x7f - 'z');
    return ~(from_a & ~above_z & ~c) & EACH * 0x80;
}

// A bit of each below "@", as is all that can end a word of tagged text.
constexpr Eight below_letters(Eight c) {
    return ~c & EACH * '@';
}

// The first from `text` on that `ends` marks, unless there is none before the last few ahead of
// `text_end`: then one of those.
template <typename Ends>
const char* skip_eights(const char* text, const char* text_end, Ends ends) {
    for (; text_end - text >= 8; text += 8) {
        const Eight marked = ends(eight_of(text));
        if (marked != 0) return text + static_cast<unsigned>(__builtin_ctzll(marked)) / 8;
    }
    return text;
}

// As skip, for a text that ends at `text_end`. Most words end at a blank.
inline const char* skip_letters(const char* text, const char* text_end) {
    const char* end = skip_eights(text, text_end, no_letters);
    return *end == ' ' ? end : skip(LETTERS, end);
}
inline const char* skip_word(const char* text, const char* text_end) {
    const char* end = skip_eights(text, text_end, below_letters);
    return *end == ' ' ? end : skip(OF_WORD, end);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_RUNS_H
