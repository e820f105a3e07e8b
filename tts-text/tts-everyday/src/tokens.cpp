#include "tokens.h"

#include <utf8.h>

#include <algorithm>
#include <cstdint>
#include <iterator>

#include "cursor.h"

namespace kavi::everyday {

namespace {

// Latin letters whose code points follow one another.
struct LatinBlock {
    char32_t first;
    std::uint16_t size;
    std::uint16_t at;  // where LATIN_LETTERS has the first
};

// At most 2,048 code points: there are many ranges, and each is four bytes.
class CodePointRange {
  public:
    constexpr CodePointRange(char32_t first, char32_t last)
        : packed_(first * LONGEST + (last - first)) {}
    constexpr char32_t first() const { return packed_ / LONGEST; }
    constexpr char32_t last() const { return first() + packed_ % LONGEST; }

  private:
    static constexpr std::uint32_t LONGEST = 2048;
    std::uint32_t packed_;
};

#include "letters.inc"

constexpr CodePointRange SILENT[] = {{0xAD, 0xAD},     {0x300, 0x36F},   {0x1AB0, 0x1AFF},
                                     {0x1DC0, 0x1DFF}, {0x20D0, 0x20FF}, {0xFE20, 0xFE2F}};

// What belongs to the emoji before it: an enclosing mark, variation selectors, skin tones, tags.
constexpr CodePointRange OF_EMOJI[] = {
    {0x20D0, 0x20FF}, {0xFE00, 0xFE0F}, {0x1F3FB, 0x1F3FF}, {0xE0020, 0xE007F}};

constexpr CodePointRange FLAG_LETTERS[] = {{0x1F1E6, 0x1F1FF}};
constexpr char32_t JOINER = 0x200D;

// The ranges are in order.
template <std::size_t N>
bool is_in(const CodePointRange (&ranges)[N], char32_t c) {
    const auto* range = std::lower_bound(
        std::begin(ranges), std::end(ranges), c,
        [](const CodePointRange& row, char32_t value) { return row.last() < value; });
    return range != std::end(ranges) && range->first() <= c;
}

// The length of what is at `at` when it is in one of the ranges; 0 otherwise.
template <std::size_t N>
std::size_t length_in(const CodePointRange (&ranges)[N], std::string_view text, std::size_t at) {
    if (at >= text.size() || !is_outside_ascii(text[at])) return 0;
    const CodePoint c = code_point_at(text.substr(at));
    return is_in(ranges, c.value) ? c.length : 0;
}

std::size_t letter_length(std::string_view text, std::size_t at) {
    if (at < text.size() && is_letter(text[at])) return 1;
    return length_in(LETTERS_OF_ANY_SCRIPT, text, at);
}

std::size_t joiner_length(std::string_view text, std::size_t at) {
    constexpr CodePointRange JOINERS[] = {{JOINER, JOINER}};
    return length_in(JOINERS, text, at);
}

// Where the code point before `at` begins; `at` is not 0.
std::size_t begin_before(std::string_view text, std::size_t at) {
    const auto is_continuation = [](char c) { return (static_cast<unsigned char>(c) >> 6U) == 2; };
    std::size_t begin = at - 1;
    while (begin > 0 && at - begin < CODE_POINT_BYTES && is_continuation(text[begin])) --begin;
    return begin;
}

}  // namespace

CodePoint code_point_at(std::string_view text) {
    if (!is_outside_ascii(text[0])) return {static_cast<unsigned char>(text[0]), 1};
    const std::string_view first = text.substr(0, CODE_POINT_BYTES);
    if (utf8::find_invalid(first.begin(), first.end()) == first.begin()) return {NO_CODE_POINT, 1};
    const auto* at = first.begin();
    const char32_t value = utf8::unchecked::next(at);
    return {value, static_cast<std::size_t>(at - first.begin())};
}

bool is_letter_of_any_script(char32_t c) {
    return is_in(LETTERS_OF_ANY_SCRIPT, c);
}

bool is_silent(char32_t c) {
    return is_in(SILENT, c);
}

const char* latin_letter(char32_t c) {
    const auto* block =
        std::upper_bound(std::begin(LATIN_BLOCKS), std::end(LATIN_BLOCKS), c,
                         [](char32_t value, const LatinBlock& row) { return value < row.first; });
    if (block == std::begin(LATIN_BLOCKS)) return nullptr;
    --block;
    if (c - block->first >= block->size) return nullptr;
    const char* letters = LETTERS_OF_ASCII[LATIN_LETTERS[block->at + c - block->first]];
    return *letters == '\0' ? nullptr : letters;
}

std::string_view token_at(std::string_view text, std::size_t at) {
    std::size_t end = at;
    while (end < text.size() && is_digit(text[end])) ++end;
    if (end > at) return text.substr(at, end - at);
    while (end < text.size() && is_letter(text[end])) ++end;
    while (const std::size_t length = letter_length(text, end)) end += length;
    if (end > at) return text.substr(at, end - at);
    return text.substr(at, code_point_at(text.substr(at)).length);
}

std::size_t emoji_rest(std::string_view text, std::string_view token, std::size_t at) {
    if (letter_length(token, 0) > 0 || length_in(OF_EMOJI, token, 0) > 0) return 0;
    std::size_t end = at;
    while (const std::size_t length = length_in(OF_EMOJI, text, end)) end += length;
    return end - at;
}

std::size_t cluster_length(std::string_view text, std::size_t at) {
    std::string_view token = token_at(text, at);
    std::size_t end = at + token.size();
    if (end >= text.size() || !is_outside_ascii(text[end])) return token.size();
    if (length_in(FLAG_LETTERS, text, at) > 0) end += length_in(FLAG_LETTERS, text, end);
    end += emoji_rest(text, token, end);
    while (const std::size_t joiner = joiner_length(text, end)) {
        end += joiner;
        if (end < text.size() && is_outside_ascii(text[end])) {
            token = text.substr(end, code_point_at(text.substr(end)).length);
            end += token.size();
        }
        end += emoji_rest(text, token, end);
    }
    return end - at;
}

bool is_there(std::string_view text, std::size_t at) {
    return at < text.size() &&
           (!is_outside_ascii(text[at]) || at + CODE_POINT_BYTES <= text.size());
}

bool is_inside_token(std::string_view text, std::size_t at) {
    if (at == 0 || at >= text.size()) return false;
    if (is_digit(text[at])) return is_digit(text[at - 1]);
    if (joiner_length(text, at) > 0) return true;
    return letter_length(text, at) > 0 && letter_length(text, begin_before(text, at)) > 0;
}

}  // namespace kavi::everyday
