// A reading: the words of one pattern, in a buffer of WORD_MAX_LEN bytes.
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

// Appends words to the text in a buffer of the caller. Words that do not fit are cut after the last
// whole word that does; the reading is then cut: it has no blank at its end, and later appends do
// nothing.
class Reading {
  public:
    // `sz_target_text` is a NUL-terminated text in a buffer of WORD_MAX_LEN bytes.
    // cppcheck-suppress uninitMemberVar ; only the first n_digit_runs_ of digit_runs_ are read
    explicit Reading(char* sz_target_text)
        : text_(sz_target_text), length_(std::strlen(sz_target_text)) {}

    // Continues the first `length` characters of the buffer.
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

    // Appends a word or tag of the source, which must not be broken. False, with nothing appended,
    // when it does not fit or the reading is cut.
    bool append_whole(std::string_view text) {
        if (!has_room(text.size())) return false;
        append(text);
        return true;
    }

    // For a caller that writes at the end itself: whether `length` characters fit, where they go,
    // and, once they are written, making them part of the reading.
    bool has_room(std::size_t length) const { return !cut_ && length <= ROOM - length_; }
    char* end() { return text_ + length_; }
    void extend(std::size_t length) {
        length_ += length;
        text_[length_] = '\0';
    }

    // Appends a blank after a word of the source, which append_whole adds without one.
    void end_word() {
        if (length_ > 0 && is_letter(text_[length_ - 1])) append(" ");
    }

    // Appends a part of the source that has no words, such as a month 25. From then on the output
    // has to be cleaned (re_regular): is_all_words stays false, after clear() too.
    void append_as_written(std::string_view text) {
        append(text);
        all_words_ = false;
    }

    // Empties the reading for the next pattern.
    void clear() {
        clear_words();
        cut_ = false;
        n_digit_runs_ = 0;
    }

    // Empties the text only: the words so far were copied, the pattern goes on.
    void clear_words() { length_ = 0; }

    std::string_view text() const { return {text_, length_}; }
    bool is_cut() const { return cut_; }
    bool is_all_words() const { return all_words_; }

    // ---- The digits that were read, for findings about digits that were not ----

    // Notes that the reading has words for these digits, a part of a token's text.
    void note_digits(std::string_view digits) {
        assert(n_digit_runs_ < DIGIT_RUNS_MAX);
        digit_runs_[n_digit_runs_++] = {digits.data(), digits.size()};
    }

    // The number of digits of `text`, a token's text, that were read.
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

    // Looks for the cut in `words` only: the text before may end with a tag, which may hold blanks.
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
