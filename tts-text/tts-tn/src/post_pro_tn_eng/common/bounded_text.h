// A NUL-terminated text that grows in a buffer of the caller. It keeps the position of its end, so
// that an append does not search for it.
#ifndef KAVI_TN_BOUNDED_TEXT_H
#define KAVI_TN_BOUNDED_TEXT_H

#include <cstddef>
#include <cstring>
#include <string_view>

#include "short_copy.h"

namespace kavi::tn {

class BoundedText {
  public:
    // `text` is a NUL-terminated text in a buffer of `capacity` bytes, which the caller owns.
    // Without a terminator in the buffer the text is full.
    BoundedText(char* text, int capacity) : text_(text), end_(text), limit_(text + capacity) {
        if (*text == '\0') return;  // the usual case
        void* end = std::memchr(text, '\0', static_cast<std::size_t>(capacity));
        end_ = end != nullptr ? static_cast<char*>(end) : limit_;
    }

    // Appends `words`. False, with nothing appended, when they do not fit.
    bool append(std::string_view words) {
        if (!has_room(words.size())) return false;
        copy_short(end_, words.data(), words.size());
        end_ += words.size();
        *end_ = '\0';
        return true;
    }

    // Appends `words` and a blank. False when both do not fit: then `words` alone, if they fit.
    bool append_spaced(std::string_view words) {
        if (!has_room(words.size() + 1)) {
            append(words);
            return false;
        }
        copy_short(end_, words.data(), words.size());
        extend_spaced(words.size());
        return true;
    }

    // For a caller that writes at the end itself: the number of characters that fit, and where they
    // go. extend_spaced then makes them part of the text.
    std::ptrdiff_t room() const { return limit_ - end_ - 1; }
    char* end() { return end_; }

    // Makes `length` characters written at end() part of the text and appends a blank. Both must
    // fit.
    void extend_spaced(std::size_t length) {
        char* end = end_ + length;
        end[0] = ' ';
        end[1] = '\0';
        end_ = end + 1;
    }

    bool has_room(std::size_t size) const { return size < static_cast<std::size_t>(limit_ - end_); }

    // Removes the last `n` characters, or all if there are fewer.
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
    char* limit_;  // the end of the buffer
};

}  // namespace kavi::tn

#endif  // KAVI_TN_BOUNDED_TEXT_H
