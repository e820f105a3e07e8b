// The one loop that reads tagged text, for counting its words and for storing them alike, so that
// the two cannot disagree.
#ifndef KAVI_TN_TEXT_READER_H
#define KAVI_TN_TEXT_READER_H

#include <cstring>

#include "../common/scratch.h"
#include "scanner.h"

namespace kavi::tn {

// The working buffers for reading the text of a span. False when the arena refused one.
class SpanBuffers {
  public:
    SpanBuffers(mem_stack_handle arena, const char* text)
        : size_(std::strlen(text) + 1),
          word_(arena, WORD_MAX_LEN, WORD_MAX_LEN),
          value_(arena, size_, size_),
          content_(arena, size_, size_) {}

    explicit operator bool() const { return word_ && value_ && content_; }
    char* word() { return word_.text(); }
    TagBuffers tag() { return {name_, value_.text(), content_.text()}; }

  private:
    std::size_t size_;
    char name_[MEMORY_SIZE_TAG_LABEL_TN] = {};
    Scratch word_;
    Scratch value_;
    Scratch content_;
};

// Reads `text` to its end and hands what it meets to the visitor: word(word), punc(name),
// breaktime(value) and span(name, value, content). Each answers whether to go on; false when one
// did not. The tag buffers hold empty texts and are as large as the text.
template <typename Visitor>
bool read_text(PostProTnEng& engine, char* text, char* word, const TagBuffers& tag,
               Visitor& visitor) {
    Scanner scanner(engine, text, word, tag);
    scanner.clear_word();  // of an earlier pass, a word that nothing completed may be left
    while (!scanner.at_end()) {
        const bool word_completed = scanner.step();
        bool go_on = true;
        if (word_completed) {
            go_on = visitor.word(word);
            scanner.clear_word();
        } else if (tag.name[0] == '\0') {
            continue;
        } else if (std::strcmp(tag.name, "punc") == 0) {
            go_on = visitor.punc(tag.value);
        } else if (std::strcmp(tag.name, "breaktime") == 0) {
            go_on = visitor.breaktime(tag.value);
        } else if (is_span_name(tag.name)) {
            go_on = visitor.span(tag.name, tag.value, tag.content);
        }
        if (!go_on) return false;
        tag.clear();
    }
    return true;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H
