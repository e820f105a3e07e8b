// A text that grows at the end of a caller's buffer and knows its length, so that no append walks
// over what is already there.
#ifndef KAVI_TN_BOUNDED_TEXT_H
#define KAVI_TN_BOUNDED_TEXT_H

#include <cstring>
#include <string_view>

namespace kavi::tn {

class BoundedText {
  public:
    // `text` is a NUL-terminated text in a buffer of `capacity` bytes; one without a terminator
    // there counts as full.
    BoundedText(char* text, int capacity) : text_(text), capacity_(capacity) {
        if (*text == '\0') return;  // the usual case
        const void* end = std::memchr(text, '\0', static_cast<std::size_t>(capacity));
        length_ =
            end != nullptr ? static_cast<int>(static_cast<const char*>(end) - text) : capacity;
    }

    // Appends all of `words` and answers true, or nothing and answers false.
    bool append(std::string_view words) {
        if (!has_room(words.size())) return false;
        words.copy(text_ + length_, words.size());
        length_ += static_cast<int>(words.size());
        text_[length_] = '\0';
        return true;
    }

    bool has_room(std::size_t size) const {
        return size < static_cast<std::size_t>(capacity_ - length_);
    }

    // Removes the last `n` characters, or all when there are fewer.
    void cut(int n) {
        length_ -= n < length_ ? n : length_;
        text_[length_] = '\0';
    }

    void cut_blanks() {
        while (ends_with(' ')) cut(1);
    }

    bool ends_with(char c) const { return length_ > 0 && text_[length_ - 1] == c; }
    int length() const { return length_; }
    char* text() { return text_; }

  private:
    char* text_;
    int capacity_;
    int length_ = 0;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_BOUNDED_TEXT_H
