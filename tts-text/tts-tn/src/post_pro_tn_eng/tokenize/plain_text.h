// Text that reads the same anywhere, and is read without tokens.
#ifndef KAVI_TN_PLAIN_TEXT_H
#define KAVI_TN_PLAIN_TEXT_H

#include "../common/bounded_text.h"
#include "../markup/tag_ends.h"
#include "reading_observer.h"

namespace kavi::tn {

// Appends the readings of words, tags and plain marks from `text` on and returns where they end: at
// the end of the text, or before a number, a month, a telephone label or a mark that a reader looks
// at: the dispatcher goes on there. Null when the output is full; it then holds what fitted. A NUL
// is at `text_end`. `tag_ends` serves one pass over the text. `observer` is shown each word, or
// stretch of words, and mark; it may be null.
const char* read_plain_text(const char* text, const char* text_end, TagEnds& tag_ends,
                            BoundedText& output, const ReadingObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_PLAIN_TEXT_H
