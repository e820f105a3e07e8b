// The scan of tagged text: words, and the tags between them.
#ifndef KAVI_TN_SCANNER_H
#define KAVI_TN_SCANNER_H

#include <string_view>

#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

inline bool is_span_name(std::string_view name) {
    return name == "prosody" || name == "emphasis" || name == "poem" || name == "quill_effect";
}

// Where the parts of a tag go; see PostProTnEng::filter_text.
struct TagBuffers {
    char* name;
    char* value;
    char* content;

    void clear() const { name[0] = value[0] = content[0] = '\0'; }
};

// One scan of one text. What it has searched for once it does not search for again.
class Scanner {
  public:
    // `word` holds WORD_MAX_LEN bytes; a scan that goes on begins at `position`, with
    // `word_length` characters there.
    Scanner(PostProTnEng& engine, char* text, char* word, const TagBuffers& tag, int position = 0,
            int word_length = 0)
        : engine_(engine),
          text_(text),
          at_(text + position),
          word_(word),
          word_length_(word_length),
          tag_(tag) {}

    bool at_end() const { return *at_ == '\0'; }

    // Reads one character or one tag. True when that completed the word. The parts of a tag that
    // it read stand in the tag buffers.
    bool step();

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

    PostProTnEng& engine_;
    char* text_;
    char* at_;
    char* word_;
    int word_length_;
    TagBuffers tag_;
    ForwardFinder tag_end_;
    ForwardFinder closings_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_SCANNER_H
