// A place in a text, and what stands around it.
#ifndef KAVI_EVERYDAY_PLACE_H
#define KAVI_EVERYDAY_PLACE_H

#include <cstddef>
#include <string>
#include <string_view>

#include "for_everyday.h"

namespace kavi::everyday {

using tn::is_digit;
using tn::is_letter;
using tn::is_lower;
using tn::is_upper;
using tn::to_lower;

inline bool is_outside_ascii(char c) {
    return static_cast<unsigned char>(c) > 127;
}

// What makes a word: letters, of ASCII or not.
inline bool is_of_word(char c) {
    return is_letter(c) || is_outside_ascii(c);
}

inline std::string in_lower_case(std::string_view text) {
    std::string lower(text);
    for (char& c : lower) c = to_lower(c);
    return lower;
}

struct Place {
    std::string_view text;
    std::size_t at;

    // The character so far on, or NUL outside the text.
    char peek(std::size_t ahead = 0) const {
        return at + ahead < text.size() ? text[at + ahead] : '\0';
    }
    char before() const { return at > 0 ? text[at - 1] : '\0'; }

    // `words` are not empty.
    bool starts_with(std::string_view words, std::size_t ahead = 0) const {
        return peek(ahead) == words[0] && part(ahead, words.size()) == words;
    }

    // How many characters so far on belong together.
    template <typename Belongs>
    std::size_t run(Belongs belongs, std::size_t ahead = 0,
                    std::size_t most = std::string_view::npos) const {
        std::size_t length = 0;
        while (length < most && at + ahead + length < text.size() &&
               belongs(text[at + ahead + length])) {
            ++length;
        }
        return length;
    }
    // Empty outside the text.
    std::string_view part(std::size_t ahead, std::size_t length) const {
        return at + ahead < text.size() ? text.substr(at + ahead, length) : std::string_view();
    }
    std::string_view rest(std::size_t ahead) const { return part(ahead, text.size()); }
    std::string_view letters(std::size_t ahead = 0) const {
        return part(ahead, run(is_letter, ahead));
    }
    std::string_view digits(std::size_t ahead = 0) const {
        return part(ahead, run(is_digit, ahead));
    }

    // The length of a hyphen or an en dash so far on; 0 for none.
    std::size_t dash(std::size_t ahead) const {
        if (starts_with("\xe2\x80\x93", ahead)) return 3;
        return peek(ahead) == '-' ? 1 : 0;
    }

    // The word before, past the blanks between; empty when something else stands there.
    std::string_view word_before() const {
        std::size_t end = at;
        while (end > 0 && text[end - 1] == ' ') --end;
        std::size_t begin = end;
        while (begin > 0 && is_letter(text[begin - 1])) --begin;
        return text.substr(begin, end - begin);
    }

    // Whether what ends so far on is said as one with a word after it: "a $100 bill".
    bool is_before_noun(std::size_t ahead) const;

    // Whether a sentence may end so far on: nothing follows, or a blank and a capital letter.
    bool may_end_sentence(std::size_t ahead) const {
        const std::size_t blanks = run([](char c) { return c == ' '; }, ahead);
        const char next = peek(ahead + blanks);
        return next == '\0' || next == '\n' || (blanks > 0 && is_upper(next));
    }
};

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_PLACE_H
