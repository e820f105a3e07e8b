// A cursor in a text and the bytes around it that a rule may read. `ahead` is an offset from the
// cursor, `back` a distance before it.
#ifndef KAVI_EVERYDAY_CURSOR_H
#define KAVI_EVERYDAY_CURSOR_H

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <string>
#include <string_view>

#include "for_everyday.h"
#include "tables.h"

namespace kavi::everyday {

using tn::is_digit;
using tn::is_letter;
using tn::is_lower;
using tn::is_upper;
using tn::to_lower;

constexpr bool is_outside_ascii(char c) {
    return static_cast<unsigned char>(c) > 127;
}

inline std::string in_lower_case(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) c = to_lower(c);
    return lower;
}

// The row for all of a word, in small letters; or null.
const Row* find_lower(const Table& table, std::string_view word);

// The bytes that a rule may read from the cursor on, and before it.
constexpr std::size_t LOOK_AHEAD = 256;
constexpr std::size_t LOOK_BACK = 64;

class Cursor {
  public:
    // `at` is at most the size of the text, which outlives the cursor.
    Cursor(std::string_view text, std::size_t at)
        : ahead_(text.substr(at, LOOK_AHEAD)),
          behind_(text.substr(at - std::min(at, LOOK_BACK), std::min(at, LOOK_BACK))),
          is_cut_(text.size() - at > LOOK_AHEAD),
          is_cut_behind_(at > LOOK_BACK) {}

    // Whether a rule tried to read beyond LOOK_AHEAD: a word or a number may be longer than it saw.
    bool has_met_bound() const { return has_met_end_ && is_cut_; }
    // Forgets what was read past the bound, or past the end, before this rule.
    void forget_bound() const { has_met_end_ = false; }

    // Whether a rule tried to read past the end of the text.
    bool has_met_end() const { return has_met_end_ && !is_cut_; }

    // The byte at `ahead`, NUL outside the text.
    char peek(std::size_t ahead = 0) const {
        if (ahead < ahead_.size()) return ahead_[ahead];
        has_met_end_ = true;
        return '\0';
    }
    // The byte at `back`, 1 for the last one; NUL outside the text.
    char before(std::size_t back = 1) const {
        assert(back > 0);
        return back <= behind_.size() ? behind_[behind_.size() - back] : '\0';
    }

    // `words` are not empty.
    bool starts_with(std::string_view words, std::size_t ahead = 0) const {
        return peek(ahead) == words[0] && part(ahead, words.size()) == words;
    }
    // Whether words end at `back`.
    bool is_after(std::string_view words, std::size_t back = 0) const {
        const std::size_t shown = behind_.size();
        return back + words.size() <= shown &&
               behind_.substr(shown - back - words.size(), words.size()) == words;
    }

    // The length of the run at `ahead` whose bytes all belong.
    template <typename Belongs>
    std::size_t run(Belongs belongs, std::size_t ahead = 0) const {
        std::size_t end = ahead;
        while (end < ahead_.size() && belongs(ahead_[end])) ++end;
        if (end >= ahead_.size()) has_met_end_ = true;
        return end - ahead;
    }
    // Empty outside the text.
    std::string_view part(std::size_t ahead, std::size_t length) const {
        if (ahead + length > ahead_.size()) has_met_end_ = true;
        return ahead < ahead_.size() ? ahead_.substr(ahead, length) : std::string_view();
    }
    // The letters at the cursor, and the digits: most rules begin with them.
    std::string_view letters() const { return part(0, is_letter(peek()) ? first_run() : 0); }
    std::string_view digits() const { return part(0, is_digit(peek()) ? first_run() : 0); }
    // The same at `ahead`, which is 0 too where a number may be at the cursor or after it.
    std::string_view letters(std::size_t ahead) const { return part(ahead, run(is_letter, ahead)); }
    std::string_view digits(std::size_t ahead) const {
        return ahead == 0 ? digits() : part(ahead, run(is_digit, ahead));
    }
    std::size_t blanks(std::size_t ahead) const {
        return run([](char c) { return c == ' '; }, ahead);
    }

    // The length of the letter of any script, or combining mark, at `ahead`; 0 if none.
    std::size_t letter(std::size_t ahead) const;
    // The length of the run of such letters.
    std::size_t word(std::size_t ahead = 0) const;
    // Whether a letter or a digit is at `ahead`.
    bool is_joined(std::size_t ahead) const { return is_digit(peek(ahead)) || letter(ahead) > 0; }
    // Whether a letter or a digit ends at `back`.
    bool is_joined_before(std::size_t back = 0) const;

    // Whether only blanks and quotation marks of mail are between the line's start and `back`.
    bool begins_line(std::size_t back = 0) const;

    // The length of a hyphen or an en dash at `ahead`; 0 if none.
    std::size_t dash(std::size_t ahead) const {
        if (starts_with("–", ahead)) return 3;
        return peek(ahead) == '-' ? 1 : 0;
    }

    // The letters that end at `back`; empty outside the text, and if they begin before LOOK_BACK.
    std::string_view letters_before(std::size_t back = 0) const;
    // The same, blanks skipped.
    std::string_view word_before(std::size_t back = 0) const;

    // The length of an apostrophe at `ahead`, straight or curly; 0 if none.
    std::size_t apostrophe(std::size_t ahead) const {
        if (peek(ahead) == '\'') return 1;
        return starts_with("’", ahead) || starts_with("‘", ahead) ? 3 : 0;
    }

    // The longest row of a table at `ahead` that fits, or null.
    const Row* find_row(const Table& table, std::size_t ahead) const {
        return find_longest(table, [&](std::size_t at) { return peek(ahead + at); });
    }
    template <typename Fits>
    const Row* find_row(const Table& table, std::size_t ahead, Fits fits) const {
        const Row* row = find_row(table, ahead);
        while (row != nullptr && !fits(*row)) row = find_shorter(table, *row);
        return row;
    }

    // Whether what ends at `ahead` is an adjective of the next word: "a $100 bill".
    bool is_before_noun(std::size_t ahead) const;

    // Whether a sentence may end at `ahead`: nothing follows, or a blank and a capital letter.
    bool may_end_sentence(std::size_t ahead) const;

  private:
    // The length of the run of letters, or of digits, at the cursor.
    std::size_t first_run() const {
        if (first_run_ == 0) first_run_ = is_digit(peek()) ? run(is_digit) : run(is_letter);
        if (first_run_ == ahead_.size()) has_met_end_ = true;
        return first_run_;
    }

    std::string_view ahead_;
    std::string_view behind_;
    mutable std::size_t first_run_ = 0;  // 0 until somebody asks
    bool is_cut_;                        // the text has more
    bool is_cut_behind_;
    mutable bool has_met_end_ = false;
};

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_CURSOR_H
