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
          content_(arena, size_, size_) {}

    explicit operator bool() const { return word_ && content_; }
    char* word() { return word_.text(); }
    char* content() { return content_.text(); }

  private:
    std::size_t size_;
    Scratch word_;
    Scratch content_;
};

// Reads `text` to its end and hands what it meets to the visitor: word(word), punc(name),
// breaktime(value) and span(name, value, content). Each answers whether to go on; false when one
// did not. `word` holds WORD_MAX_LEN bytes, `content` as many as the text.
template <typename Visitor>
bool read_text(const char* text, char* word, char* content, Visitor& visitor) {
    const auto visit_tag = [&](const Tag& tag) {
        switch (tag.use) {
            case TagUse::punc: return visitor.punc(tag.value);
            case TagUse::breaktime: return visitor.breaktime(tag.value);
            case TagUse::span:
                std::memcpy(content, tag.content.data(), tag.content.size());
                content[tag.content.size()] = '\0';
                return visitor.span(tag.name, tag.value, content);
            default: return true;
        }
    };
    Scanner scanner(text, word);
    scanner.clear_word();  // of an earlier pass, a word that nothing completed may be left
    for (;;) {
        const std::string_view plain = scanner.plain_word();
        if (!plain.empty()) {
            if (!visitor.word(plain)) return false;
        } else if (scanner.at_end()) {
            return true;
        } else if (scanner.step()) {
            if (!visitor.word(scanner.word())) return false;
            scanner.clear_word();
        } else if (const Tag* tag = scanner.tag()) {
            if (!visit_tag(*tag)) return false;
        }
    }
}

}  // namespace kavi::tn

#endif  // KAVI_TN_TEXT_READER_H
