// Text that many short pieces are put together to.
#ifndef KAVI_TOOL_TEXT_BUFFER_H
#define KAVI_TOOL_TEXT_BUFFER_H

#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace kavi::tool {

// The characters that stand in a format as they are: ASCII, but for control characters and
// `special` ones.
class PlainCharacters {
  public:
    constexpr explicit PlainCharacters(std::string_view special) {
        for (char c = ' '; c <= '~'; ++c) {
            is_plain_[static_cast<unsigned char>(c)] = special.find(c) == std::string_view::npos;
        }
    }

    // Whether a text is nothing else. It is not left early: most texts are plain.
    bool are_all(std::string_view text) const {
        bool plain = true;
        for (const char c : text) plain &= is_plain_[static_cast<unsigned char>(c)];
        return plain;
    }

  private:
    std::array<bool, 256> is_plain_{};
};

// A piece costs a comparison and a copy, while std::string makes a call of it.
class TextBuffer {
  public:
    void clear() { end_ = 0; }
    std::string_view text() const { return {bytes_.data(), end_}; }

    TextBuffer& operator<<(char c) {
        reserve(1);
        bytes_[end_++] = c;
        return *this;
    }
    TextBuffer& operator<<(std::string_view piece) {
        reserve(piece.size());
        std::memcpy(bytes_.data() + end_, piece.data(), piece.size());
        end_ += piece.size();
        return *this;
    }
    TextBuffer& operator<<(std::size_t number) {
        constexpr std::size_t DIGITS = std::numeric_limits<std::size_t>::digits10 + 1;
        reserve(DIGITS);
        char* begin = bytes_.data() + end_;
        end_ += static_cast<std::size_t>(std::to_chars(begin, begin + DIGITS, number).ptr - begin);
        return *this;
    }

  private:
    void reserve(std::size_t size) {
        if (size > bytes_.size() - end_) bytes_.resize(2 * (end_ + size));
    }

    std::string bytes_;  // longer than the text
    std::size_t end_ = 0;
};

}  // namespace kavi::tool

#endif  // KAVI_TOOL_TEXT_BUFFER_H
