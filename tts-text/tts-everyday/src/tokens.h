// What a text is made of: words of letters of any script, runs of digits, and single code points.
#ifndef KAVI_EVERYDAY_TOKENS_H
#define KAVI_EVERYDAY_TOKENS_H

#include <cstddef>
#include <string_view>

namespace kavi::everyday {

// Of the longest code point.
constexpr std::size_t CODE_POINT_BYTES = 4;

struct CodePoint {
    char32_t value;      // NO_CODE_POINT for an invalid byte
    std::size_t length;  // 1 then
};
constexpr char32_t NO_CODE_POINT = 0xFFFFFFFF;

// The first of a text that is not empty.
CodePoint code_point_at(std::string_view text);

// Also a mark upon a letter, but no sign that changes the look of an emoji.
bool is_letter_of_any_script(char32_t c);

// In a word and not said: a diacritical mark upon a Latin letter, a soft hyphen.
bool is_silent(char32_t c);

// A Latin letter as letters of ASCII; null for others.
const char* latin_letter(char32_t c);

// The token that begins at `at`, which is in the text. A code point that is neither letter nor
// digit is a token of its own.
std::string_view token_at(std::string_view text, std::size_t at);

// How many bytes after a token that ends at `at` belong to it when it is an emoji: variation
// selectors, skin tones, marks. 0 after a word, and after one of these that is alone.
std::size_t emoji_rest(std::string_view text, std::string_view token, std::size_t at);

// How long all is that belongs together from `at`: a token with what belongs to an emoji, several
// emoji that are joined to one, two letters of a flag.
std::size_t cluster_length(std::string_view text, std::size_t at);

// Whether enough text follows `at` to tell if it continues the token before `at`: the text may go
// on after its end.
bool is_there(std::string_view text, std::size_t at);

// Whether a word, a number or an emoji goes on from before `at` to after it.
bool is_inside_token(std::string_view text, std::size_t at);

}  // namespace kavi::everyday

#endif  // KAVI_EVERYDAY_TOKENS_H
