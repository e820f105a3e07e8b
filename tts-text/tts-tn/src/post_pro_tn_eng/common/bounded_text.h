// A text that grows at the end of a caller's buffer and knows its length, so that no append walks
// over what is already there.
#ifndef KAVI_TN_BOUNDED_TEXT_H
#define KAVI_TN_BOUNDED_TEXT_H

#include <cstddef>
#include <cstring>
#include <string_view>

#include "short_copy.h"

namespace kavi::tn {

class BoundedText {
  public:
    // `text` is a NUL-terminated text in a buffer of `capacity` bytes; one without a terminator
    // there counts as full.
    BoundedText(char* text, int capacity) : text_(text), end_(text), limit_(text + capacity) {
        if (*text == '\0') return;  // the usual case
        void* end = std::memchr(text, '\0', static_cast<std::size_t>(capacity));
        end_ = end != nullptr ? static_cast<char*>(end) : limit_;
    }

    // Appends all of `words` and answers true, or nothing and answers false.
    bool append(std::string_view words) {
        if (!has_room(words.size())) return false;
        copy_short(end_, words.data(), words.size());
        end_ += words.size();
        *end_ = '\0';
        return true;
    }

    // Appends the words, and then a blank. False when that has no room, or neither has.
    bool append_spaced(std::string_view words) {
        if (!has_room(words.size() + 1)) {
            append(words);
            return false;
        }
        copy_short(end_, words.data(), words.size());
        extend_spaced(words.size());
        return true;
    }

    // For words that are written straight to the end: how many characters fit, and where they go.
    std::ptrdiff_t room() const { return limit_ - end_ - 1; }
    char* end() { return end_; }

    // Takes `length` characters that have been written there. A blank comes after them, and must
    // fit.
    void extend_spaced(std::size_t length) {
        char* end = end_ + length;
        end[0] = ' ';
        end[1] = '\0';
        end_ = end + 1;
    }

    bool has_room(std::size_t size) const { return size < static_cast<std::size_t>(limit_ - end_); }

    // Removes the last `n` characters, or all when there are fewer.
    void cut(int n) {
        end_ -= n < length() ? n : length();
        *end_ = '\0';
    }

    void cut_blanks() {
        while (ends_with(' ')) --end_;
        *end_ = '\0';
    }

    bool ends_with(char c) const { return end_ != text_ && end_[-1] == c; }
    int length() const { return static_cast<int>(end_ - text_); }
    char* text() { return text_; }

  private:
    char* text_;
    char* end_;
    char* limit_;  // after the buffer
};

}  // namespace kavi::tn

#endif  // KAVI_TN_BOUNDED_TEXT_H
