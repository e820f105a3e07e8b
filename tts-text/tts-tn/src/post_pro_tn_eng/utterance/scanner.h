// The scan of tagged text: words, and the tags between them.
#ifndef KAVI_TN_SCANNER_H
#define KAVI_TN_SCANNER_H

#include <algorithm>
#include <string_view>

#include "../common/ascii.h"
#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

enum class TagRole {
    simple,   // ends at its ">"
    dropped,  // paired; goes with its content
    span,     // paired; its content is read
};

// What the builder does at a tag.
enum class TagUse { none, punc, breaktime, span };

// A tag of the language, as it stands in the text.
struct Tag {
    TagRole role;
    TagUse use;
    std::string_view name;
    std::string_view value;
    std::string_view content;  // between a paired tag and its closing tag
    const char* behind;        // where the text goes on
};

// One scan of one text. What it has searched for once it does not search for again.
class Scanner {
  public:
    // `word` holds WORD_MAX_LEN bytes; a scan that goes on begins at `position`, with
    // `word_length` characters there.
    Scanner(const char* text, char* word, int position = 0, int word_length = 0)
        : text_(text), at_(text + position), word_(word), word_length_(word_length) {}

    bool at_end() const { return *at_ == '\0'; }

    // Reads one character or one tag. True when that completed the word in the buffer.
    bool step();

    // The tag that the last step read, or null.
    const Tag* tag() const { return met_tag_ ? &tag_ : nullptr; }

    // Reads the next word, if no word has begun and no tag touches the next: the usual case, for
    // which nothing is copied. Otherwise the empty text, and the scan stands where that ends.
    std::string_view plain_word() {
        if (word_length_ > 0) return {};
        while (*at_ == ' ') ++at_;
        if (run_end_ <= at_) run_end_ = skip(OF_WORD, at_);
        const auto length =
            std::min(static_cast<std::size_t>(run_end_ - at_), std::size_t{WORD_MAX_LEN - 1});
        if (length < WORD_MAX_LEN - 1 && *run_end_ == '<') return {};
        const std::string_view word(at_, length);
        at_ += length;
        return word;
    }

    // The word that the last step completed.
    std::string_view word() const { return {word_, static_cast<std::size_t>(word_length_)}; }

    // Makes room for the next word.
    void clear_word() {
        word_[0] = '\0';
        word_length_ = 0;
    }

    int position() const { return static_cast<int>(at_ - text_); }
    int word_length() const { return word_length_; }

  private:
    enum class Met { no_tag, tag, word_end };

    Met meet_tag();
    bool has_word() const { return word_[0] != '\0'; }
    bool advance();

    const char* text_;
    const char* at_;
    const char* run_end_ = nullptr;  // of the run of plain characters that was looked at last
    char* word_;
    int word_length_;
    bool met_tag_ = false;
    Tag tag_ = {};
    ForwardFinder tag_ends_;
    ForwardFinder closings_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SCANNER_H
