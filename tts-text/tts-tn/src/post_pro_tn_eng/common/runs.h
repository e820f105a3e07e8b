// Runs of characters of one kind, and where they end: by a look-up for each character, or for eight
// characters at a time.
#ifndef KAVI_TN_RUNS_H
#define KAVI_TN_RUNS_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "ascii.h"
#include "kavi_compiler.h"

namespace kavi::tn {

// The kinds of run, a bit for each. NUL is of no kind: a run ends with its text.
enum Run : unsigned char {
    LETTERS = 1,
    DIGITS = 2,
    COPIED = 4,  // characters that the sentence cutter copies without a decision
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

// The first character at or after `text` that does not belong to the run. A NUL ends the text.
constexpr const char* skip(Run run, const char* text) {
    while (belongs_to(run, *text)) ++text;
    return text;
}

// ---- Eight characters at a time ----
//
// The functions below hold eight characters in one register, a byte for each, and compute flags: a
// bit in the byte of each character that ends a run, or may end one. The lowest flag is the end of
// the run, or a candidate that a look-up confirms.
//
// Comparisons are sums: adding 0x80 - n to a byte below 0x80 sets its top bit if the byte is n or
// more, for all eight bytes in one instruction. A byte of 0x80 or more may carry into the next one,
// so where bytes are not masked first, no flag after the lowest one is reliable.
//
// This pays because the lengths of words are unpredictable: a loop over the characters of a word
// ends with a mispredicted branch, while most words end within their first eight characters. The
// tokenizer takes 7.4 instructions for a byte of prose; a loop that does no more than classify each
// byte and count words takes 10.0 (docs/performance.md).

using Eight = std::uint64_t;  // eight characters, the first in the lowest byte
constexpr Eight EACH = 0x0101010101010101;

constexpr Eight eight_of(const char* text) {
    const auto at = [=](int i) { return Eight{static_cast<unsigned char>(text[i])} << (8 * i); };
    return at(0) | at(1) | at(2) | at(3) | at(4) | at(5) | at(6) | at(7);  // compiled to one load
}

// The first position of a text with fewer than eight characters from there on.
inline const char* eights_end(const char* text, const char* text_end) {
    return text_end - text >= 8 ? text_end - 7 : text;
}

// Sets the top bit of each byte that ends a run of lower-case words with single blanks: a character
// that is neither a lower-case letter nor a blank, and the second of two blanks. Only the lowest
// flag is reliable. The top bit of the lowest byte of `no_blanks` says that the character before
// these eight is not a blank; it is set anew for the next eight.
//
//   characters  t h e _ _ c a t    "_" is a blank
//   flags       . . . . 1 ? ? ?
constexpr Eight ends_of_small_words(Eight c, Eight& no_blanks) {
    const Eight from_blank = c ^ EACH * ' ';  // 0 for a blank, 'A' to 'Z' for 'a' to 'z'
    const Eight no_blank = from_blank + EACH * 0x7f;
    const Eight no_letter =
        ~(from_blank + EACH * (0x80 - 'A')) | (from_blank + EACH * (0x7f - 'Z'));
    const Eight one_blank = no_blank | no_blank << 8 | no_blanks;
    no_blanks = no_blank >> 56;
    return ((no_letter & no_blank) | from_blank | ~one_blank) & EACH * 0x80;
}

// Flags, by the bit 0x20, the characters from "!" to "?", among them all that are not COPIED, and
// control characters and some bytes above 127. The sums do not carry: all flags are reliable.
constexpr Eight maybe_not_copied(Eight c) {
    const Eight no_blank = (c & EACH * 0x1f) + EACH * 0x1f;
    return no_blank & ~c >> 1 & EACH * 0x20;
}

// Has the bit 0x20 cleared for digits, and for some other bytes that are COPIED: without it each
// digit of a number would be a candidate.
constexpr Eight no_digit(Eight c) {
    const Eight from_colon = (c & EACH * 0x1f) + EACH * ('@' - ':');
    return from_colon | ~c << 1;
}

// The index, 0 to 7, of the first flagged character. `flags` is not 0.
inline std::size_t first_of(Eight flags) {
    return static_cast<unsigned>(lowest_bit(flags)) / 8;
}

// Copies lower-case words with single blanks between them, and one blank at their end, from `text`
// to the same offsets of `target`: from offset `at`, which a letter precedes, to at most `limit`.
// Returns the offset of their end. Up to eight more characters, none at or after `limit`, may have
// been copied.
inline std::ptrdiff_t copy_small_words(const char* text, std::ptrdiff_t at, std::ptrdiff_t limit,
                                       char* target) {
    Eight no_blanks = 0x80;
    for (; at + 8 <= limit; at += 8) {
        const Eight flags = ends_of_small_words(eight_of(text + at), no_blanks);
        std::memcpy(target + at, text + at, 8);
        if (flags != 0) return at + static_cast<std::ptrdiff_t>(first_of(flags));
    }
    while (at < limit && (is_lower(text[at]) || (text[at] == ' ' && text[at - 1] != ' '))) {
        target[at] = text[at];
        ++at;
    }
    return at;
}

// The first character at or after `text` that is not COPIED. A NUL is at `text_end`.
inline const char* skip_copied(const char* text, const char* text_end) {
    for (const char* const end = eights_end(text, text_end); text < end; text += 8) {
        const Eight eight = eight_of(text);
        Eight flags = maybe_not_copied(eight);
        if (flags == 0) continue;
        for (flags &= no_digit(eight); flags != 0; flags &= flags - 1) {
            const char* at = text + first_of(flags);
            if (!belongs_to(COPIED, *at)) return at;
        }
    }
    return skip(COPIED, text);
}

}  // namespace kavi::tn

#endif  // KAVI_TN_RUNS_H
