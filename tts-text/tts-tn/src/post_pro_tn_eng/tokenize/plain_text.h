// Text that reads the same wherever it stands, and is read without tokens.
#ifndef KAVI_TN_PLAIN_TEXT_H
#define KAVI_TN_PLAIN_TEXT_H

#include "../common/bounded_text.h"
#include "../markup/tag_ends.h"
#include "reading_observer.h"
#include "token_window.h"

namespace kavi::tn {

// Appends the readings from `text` on and returns where they end: at the end of the text, or where
// a pattern may begin that a reader has to look at. Null when the output is full; it then holds
// what fitted. What is read is what the dispatcher would read: the same kinds of words and the same
// rows of marks, without a number before them.
// A NUL stands at `text_end`. `tag_ends` serves one pass over the text; `tokens` are asked for what
// stands further on. `observer` is shown each word, or stretch of words, and mark; it may be null.
const char* read_plain_text(const char* text, const char* text_end, TagEnds& tag_ends,
                            TokenWindow& tokens, BoundedText& output,
                            const ReadingObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_PLAIN_TEXT_H
