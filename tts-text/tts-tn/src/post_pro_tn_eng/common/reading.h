// The words that are written for one pattern, in a reading buffer of WORD_MAX_LEN bytes.
#ifndef KAVI_TN_READING_H
#define KAVI_TN_READING_H

#include <cassert>
#include <cstring>
#include <string_view>

#include "ascii.h"
#include "limits.h"
#include "post_pro_tn_eng.h"
#include "short_copy.h"

namespace kavi::tn {

// Grows after what the buffer holds already. Words that no longer fit are cut after the last whole
// one that does, and everything after the cut is dropped. A cut reading does not end in a blank.
class Reading {
  public:
    // `sz_target_text` is a text in a buffer of WORD_MAX_LEN bytes; the buffer stays the caller's.
    // cppcheck-suppress uninitMemberVar ; of the digits' runs, those noted are set
    explicit Reading(char* sz_target_text)
        : text_(sz_target_text), length_(std::strlen(sz_target_text)) {}

    // Grows after the first `length` characters of the buffer.
    // cppcheck-suppress uninitMemberVar
    Reading(char* buffer, std::size_t length) : text_(buffer), length_(length) {}

    void append(std::string_view words) {
        if (cut_) return;
        if (words.size() > ROOM - length_) {
            append_cut(words);
            return;
        }
        copy_short(end(), words.data(), words.size());
        extend(words.size());
    }

    // Appends a text that must not be broken, such as a word or a tag of the user's, and answers
    // true; or nothing, and answers false: there is no room, or the reading has been cut.
    bool append_whole(std::string_view text) {
        if (!has_room(text.size())) return false;
        append(text);
        return true;
    }

    // For words of at most `length` characters that are written to the end: whether they have room,
    // where they go, and that they are there.
    bool has_room(std::size_t length) const { return !cut_ && length <= ROOM - length_; }
    char* end() { return text_ + length_; }
    void extend(std::size_t length) {
        length_ += length;
        text_[length_] = '\0';
    }

    // Ends a word of the user's, which has no blank after it yet.
    void end_word() {
        if (length_ > 0 && is_letter(text_[length_ - 1])) append(" ");
    }

    // Appends a text that is no words, since there are none for it. This reading has not been all
    // words then, whatever comes after it.
    void append_as_written(std::string_view text) {
        append(text);
        all_words_ = false;
    }

    // Makes the reading empty, for the next pattern.
    void clear() {
        clear_words();
        cut_ = false;
        n_digit_runs_ = 0;
    }

    // Makes room for more words of the same pattern, when those so far have been copied.
    void clear_words() { length_ = 0; }

    std::string_view text() const { return {text_, length_}; }
    bool is_cut() const { return cut_; }
    bool is_all_words() const { return all_words_; }

    // ---- Which digits have been read, for those who want to know which were not ----

    // Notes that these digits, a piece of a section's text, are in the reading.
    void note_digits(std::string_view digits) {
        assert(n_digit_runs_ < DIGIT_RUNS_MAX);
        digit_runs_[n_digit_runs_++] = {digits.data(), digits.size()};
    }

    // How many digits of this text were read.
    std::size_t digits_read(std::string_view text) const {
        std::size_t n = 0;
        for (std::size_t i = 0; i < n_digit_runs_; ++i) {
            const DigitRun& run = digit_runs_[i];
            if (run.begin >= text.data() && run.begin < text.data() + text.size()) n += run.length;
        }
        return n;
    }

  private:
    static constexpr std::size_t ROOM = WORD_LENGTH_MAX;
    static constexpr std::size_t DIGIT_RUNS_MAX = 10;  // a country code and nine groups

    struct DigitRun {
        const char* begin;
        std::size_t length;
    };

    // What is there already stays: it may end in a tag, which holds blanks.
    void append_cut(std::string_view words) {
        cut_ = true;
        std::string_view kept = words.substr(0, ROOM - length_);
        if (words[kept.size()] != ' ') kept = kept.substr(0, kept.rfind(' ') + 1);
        std::memcpy(text_ + length_, kept.data(), kept.size());
        length_ += kept.size();
        length_ = text().find_last_not_of(' ') + 1;  // 0 when there is none
        text_[length_] = '\0';
    }

    char* text_;
    std::size_t length_;
    bool cut_ = false;
    bool all_words_ = true;
    std::size_t n_digit_runs_ = 0;
    DigitRun digit_runs_[DIGIT_RUNS_MAX];  // the first n_digit_runs_
};

}  // namespace kavi::tn

#endif  // KAVI_TN_READING_H
