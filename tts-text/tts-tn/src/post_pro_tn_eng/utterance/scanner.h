// The scanner: reads tagged text step by step into words and the tags between them.
#ifndef KAVI_TN_SCANNER_H
#define KAVI_TN_SCANNER_H

#include <optional>
#include <string_view>

#include "../markup/paired_tags.h"
#include "../markup/tag_ends.h"
#include "../markup/tag_language.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// One scan forward through a text, or through a span of it as if it were the whole text. It keeps
// the results of its searches for the ends of tags.
class Scanner {
  public:
    // Scans from `at` to `end`, where a NUL is. `word` is a buffer of WORD_MAX_LEN bytes, which the
    // caller owns and which holds `word_length` characters of the current word. The arena may be
    // null.
    Scanner(const char* at, const char* end, char* word, int word_length, mem_stack_handle arena);
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;

    const char* at() const { return at_; }

    // Goes on at a later position, and ends at `end`.
    void go_on_at(const char* at, const char* end) {
        at_ = at;
        end_ = end;
    }

    // Whether an unclosed paired tag, other than a span, has been skipped. From then on a tag at
    // the end of the text completes the word before it; otherwise that word is lost.
    bool keeps_last_word() const { return keeps_last_word_; }
    void keep_last_word(bool keeps) { keeps_last_word_ = keeps; }

    // Reads one character or one tag. True when that completed the word in the buffer; it is
    // NUL-terminated then.
    bool step();

    // The tag that the last step read, or null. A closing tag outside its span is none.
    const Tag* tag() const { return met_tag_ ? &tag_ : nullptr; }

    // The word that the last step completed, and where it begins in the text.
    std::string_view word() const { return {word_, static_cast<std::size_t>(word_length_)}; }
    const char* word_begin() const { return word_begin_; }
    int word_length() const { return word_length_; }
    bool has_word() const { return word_[0] != '\0'; }

    // Empties the buffer for the next word.
    void clear_word() {
        word_[0] = '\0';
        word_length_ = 0;
    }

  private:
    enum class Met { no_tag, tag, word_end };

    Met meet_tag();
    bool advance();

    const char* at_;
    const char* end_;
    char* word_;
    int word_length_;
    const char* word_begin_ = nullptr;
    bool met_tag_ = false;
    bool keeps_last_word_ = false;
    const char* tag_at_ = nullptr;  // the position of the last tag that was read
    Tag tag_;
    TagEnds tag_ends_;
    mem_stack_handle arena_;
    std::optional<PairedTags> paired_tags_;  // made at the first tag
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SCANNER_H
