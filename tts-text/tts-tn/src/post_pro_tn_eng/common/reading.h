// The words that a reader writes into a 500-byte reading buffer.
#ifndef KAVI_TN_READING_H
#define KAVI_TN_READING_H

#include <cstring>
#include <string_view>

#include "post_pro_tn_eng.h"
#include "scratch.h"

namespace kavi::tn {

// Grows behind what the buffer holds already. Words that no longer fit are cut after the last whole
// one that does, and everything after the cut is dropped. A cut reading does not end in a blank.
class Reading {
  public:
    explicit Reading(char* sz_target_text)
        : text_(sz_target_text), length_(std::strlen(sz_target_text)) {}

    void append(std::string_view words) {
        if (cut_) return;
        if (words.size() > ROOM - length_) {
            append_cut(words);
            return;
        }
        std::memcpy(text_ + length_, words.data(), words.size());
        length_ += words.size();
        text_[length_] = '\0';
    }

    // Moves what a number reader left in the scratch buffer to the end of this reading.
    void take(Scratch& scratch) {
        append(scratch.text());
        scratch.clear();
    }

    // Appends a text that must not be broken, such as a markup tag, or nothing.
    void append_whole(std::string_view text) {
        if (text.size() <= ROOM - length_) append(text);
    }

  private:
    static constexpr std::size_t ROOM = WORD_MAX_LEN - 1;

    void append_cut(std::string_view words) {
        cut_ = true;
        const std::size_t room = ROOM - length_;
        std::memcpy(text_ + length_, words.data(), room);
        std::string_view kept(text_, ROOM);
        if (words[room] != ' ') kept = kept.substr(0, kept.rfind(' ') + 1);
        length_ = kept.find_last_not_of(' ') + 1;  // 0 when there is none
        text_[length_] = '\0';
    }

    char* text_;
    std::size_t length_;
    bool cut_ = false;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_READING_H
