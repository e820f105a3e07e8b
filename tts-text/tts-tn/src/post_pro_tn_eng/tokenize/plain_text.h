// Text that reads the same wherever it stands, and is read without tokens.
#ifndef KAVI_TN_PLAIN_TEXT_H
#define KAVI_TN_PLAIN_TEXT_H

#include <string_view>

#include "../common/bounded_text.h"
#include "../markup/tag_ends.h"
#include "reading_observer.h"
#include "token_window.h"

namespace kavi::tn {

// Reads one sentence, stretch by stretch. What it reads is what the dispatcher would read: the same
// kinds of words and the same rows of marks, without a number before them.
class PlainText {
  public:
    // A NUL stands at `text_end`. `tag_ends` serves one pass over the text; `tokens` are asked for
    // what stands further on.
    PlainText(const char* text_end, TagEnds& tag_ends, TokenWindow& tokens, BoundedText& output)
        : text_end_(text_end), tag_ends_(tag_ends), tokens_(tokens), output_(output) {}

    // Appends the readings from `text` on and returns where they end: at the end of the text, or
    // where a pattern may begin that a reader has to look at. Null when the output is full; it then
    // holds what fitted. `observer` is shown each word, or stretch of words, and mark; it may be
    // null.
    const char* read(const char* text, const ReadingObserver* observer);

  private:
    // Each reads what begins at `text` and returns where that ends; `text` itself when a reader has
    // to look at it, null when the output is full.
    inline const char* word(const char* text);
    inline const char* plain_words(const char* text);
    inline const char* other_word(const char* text);
    inline const char* mark(const char* text);
    inline const char* smaller(const char* text);
    inline const char* apostrophe(const char* text);

    const char* text_end_;
    TagEnds& tag_ends_;
    TokenWindow& tokens_;
    BoundedText& output_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_PLAIN_TEXT_H
