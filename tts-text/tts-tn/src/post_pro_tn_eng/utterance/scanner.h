// The scan of tagged text: words, and the tags between them.
#ifndef KAVI_TN_SCANNER_H
#define KAVI_TN_SCANNER_H

#include <optional>
#include <string_view>

#include "../markup/paired_tags.h"
#include "../markup/tag_ends.h"
#include "../markup/tag_language.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

// One scan forward through one text, or through a span of it as if it were the whole. What it has
// searched for once it does not search for again.
class Scanner {
  public:
    // The text ends at `end`, where a NUL is. `word` holds WORD_MAX_LEN bytes, `word_length` of
    // them characters of the word at hand. The arena may be null.
    Scanner(const char* at, const char* end, char* word, int word_length, mem_stack_handle arena);
    Scanner(const Scanner&) = delete;
    Scanner& operator=(const Scanner&) = delete;

    const char* at() const { return at_; }

    // Goes on at a later place, and as if the text ended there.
    void go_on_at(const char* at, const char* end) {
        at_ = at;
        end_ = end;
    }

    // Whether a paired tag that nothing closes has been passed over by itself. From then on a tag
    // that ends the text completes the word before it, which is lost otherwise.
    bool keeps_last_word() const { return keeps_last_word_; }
    void keep_last_word(bool keeps) { keeps_last_word_ = keeps; }

    // Reads one character or one tag. True when that completed the word in the buffer.
    bool step();

    // The tag that the last step read, or null.
    const Tag* tag() const { return met_tag_ ? &tag_ : nullptr; }

    // The word that the last step completed.
    std::string_view word() const { return {word_, static_cast<std::size_t>(word_length_)}; }
    const char* word_begin() const { return word_begin_; }  // in the text
    int word_length() const { return word_length_; }
    bool has_word() const { return word_[0] != '\0'; }

    // Makes room for the next word.
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
    const char* tag_at_ = nullptr;  // where the last tag that was read begins
    Tag tag_;
    TagEnds tag_ends_;
    mem_stack_handle arena_;
    std::optional<PairedTags> paired_tags_;  // from the first paired tag on
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SCANNER_H
