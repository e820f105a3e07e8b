// A buffer for a text that is put together from many short pieces.
#ifndef KAVI_TTS_TEXT_BUFFER_H
#define KAVI_TTS_TEXT_BUFFER_H

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace kavi {

// The characters that a format writes without an escape: ASCII, except control characters and the
// `Special` ones.
template <char... Special>
class PlainCharacters {
  public:
    static constexpr std::size_t AT_ONCE = 16;  // from this length on, comparing pays

    static bool have(char c) { return IS_PLAIN[static_cast<unsigned char>(c)]; }

    // Whether a text has only such characters. The loop over a longer text has no early exit, and
    // compares instead of looking up, so that the compiler can vectorise it: most texts are plain.
    static bool are_all(std::string_view text) {
        if (text.size() < AT_ONCE) return std::all_of(text.begin(), text.end(), have);
        unsigned char other = 0;
        for (const char c : text) {
            const auto special = static_cast<unsigned char>(((c == Special) | ...));
            other |= static_cast<unsigned char>((c < ' ') | (c > '~') | special);
        }
        return other == 0;
    }

  private:
    static constexpr std::array<bool, 256> all() {
        std::array<bool, 256> plain{};
        for (char c = ' '; c <= '~'; ++c) {
            plain[static_cast<unsigned char>(c)] = !((c == Special) || ...);
        }
        return plain;
    }
    static constexpr std::array<bool, 256> IS_PLAIN = all();
};

// A text that grows. Pieces that are added by one call cost one test for room and a copy each;
// std::string makes a call for each. clear() keeps the memory.
class TextBuffer {
  public:
    void clear() { end_ = 0; }

    // Each has at most size() bytes: keeps the first `size`, or removes them.
    void cut_to(std::size_t size) { end_ = size; }
    void cut_front(std::size_t size) {
        end_ -= size;
        std::memmove(bytes_.data(), bytes_.data() + size, end_);
    }
    std::size_t size() const { return end_; }
    std::string_view text() const { return {bytes_.data(), end_}; }

    // Characters, texts and numbers, one after the other.
    template <typename... Pieces>
    void add(const Pieces&... pieces) {
        append(as_piece(pieces)...);
    }
    template <typename Piece>
    TextBuffer& operator<<(const Piece& piece) {
        add(piece);
        return *this;
    }

    // Adds a text of PlainCharacters only. False, with nothing added, for any other. A short text
    // is copied while it is tested.
    template <typename Characters>
    bool add_plain(std::string_view text, Characters characters) {
        if (text.size() >= Characters::AT_ONCE) {
            const bool is_plain = characters.are_all(text);
            if (is_plain) add(text);
            return is_plain;
        }
        char* end = end_with(text.size());
        bool plain = true;
        for (const char c : text) {
            plain &= characters.have(c);
            *end++ = c;
        }
        if (plain) end_ += text.size();
        return plain;
    }

  private:
    // The end, with room for `room` characters.
    char* end_with(std::size_t room) {
        if (room > bytes_.size() - end_) bytes_.resize(2 * (end_ + room));
        return bytes_.data() + end_;
    }

    template <typename... Pieces>
    void append(Pieces... pieces) {
        char* end = end_with((room_for(pieces) + ...));
        ((end = put(pieces, end)), ...);
        end_ = static_cast<std::size_t>(end - bytes_.data());
    }

    // A text that ends in a NUL is measured once.
    static char as_piece(char c) { return c; }
    static std::string_view as_piece(std::string_view text) { return text; }
    static std::size_t as_piece(std::size_t number) { return number; }

    static constexpr std::size_t room_for(char /*c*/) { return 1; }
    static constexpr std::size_t room_for(std::string_view piece) { return piece.size(); }
    static constexpr std::size_t room_for(std::size_t /*number*/) {
        return std::numeric_limits<std::size_t>::digits10 + 1;
    }

    static char* put(char c, char* end) {
        *end = c;
        return end + 1;
    }
    // Words and names are copied as two halves of fixed size that may overlap, since a call of
    // memcpy costs more than they do.
    static char* put(std::string_view piece, char* end) {
        const std::size_t size = piece.size();
        if (size < 2 || size > 16) {
            piece.copy(end, size);  // which allows an empty piece at null
        } else if (size < 4) {
            put_ends<2>(piece, end);
        } else if (size < 8) {
            put_ends<4>(piece, end);
        } else {
            put_ends<8>(piece, end);
        }
        return end + size;
    }
    template <std::size_t Size>
    static void put_ends(std::string_view piece, char* end) {
        std::memcpy(end, piece.data(), Size);
        std::memcpy(end + piece.size() - Size, piece.data() + piece.size() - Size, Size);
    }
    // Lengths mostly have one digit.
    static char* put(std::size_t number, char* end) {
        if (number < 10) return put(static_cast<char>('0' + number), end);
        return std::to_chars(end, end + room_for(number), number).ptr;
    }

    std::string bytes_;    // as large as its capacity
    std::size_t end_ = 0;  // the size of the text
};

}  // namespace kavi

#endif  // KAVI_TTS_TEXT_BUFFER_H
