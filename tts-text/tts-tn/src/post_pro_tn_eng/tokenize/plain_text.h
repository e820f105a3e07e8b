// Plain text: the parts of a sentence that read the same whatever is around them.
//
// Most of a sentence is words, blanks and marks that no reader has to look at. They are copied
// straight to the output; tokens are made only of the rest. In
//
//     We met in May, at 5.
//
// "We met in " is plain, the month stops it, the dispatcher reads "May", "," and " ", then "at " is
// plain again, and the number stops it.
//
// The result is that of the dispatcher over all tokens. Words and marks have the same
// classification (readers/words, tokenize/mark_readings); whatever it leaves to a reader stops
// plain text; and by the rule of plain words (readers/readers.h) no reader looks from one side of a
// plain word to the other. Plain text begins after a plain word or a blank, never after a number,
// so a mark in it is never after a number. A test reads all tables of sentences in both ways.
//
// A byte of prose, which is all plain, costs the tokenizer 7.4 instructions; one of a text in which
// every second word is a number, 66.2 (docs/performance.md).
#ifndef KAVI_TN_PLAIN_TEXT_H
#define KAVI_TN_PLAIN_TEXT_H

#include "../common/bounded_text.h"
#include "../markup/tag_ends.h"
#include "reading_observer.h"

namespace kavi::tn {

// Appends the readings of the plain text at `text` and returns its end: the end of the text, or a
// number, a month, a telephone label or a mark that the dispatcher has to read. Null when the
// output is full: it holds the part that fitted. A NUL is at `text_end`. `tag_ends` serves one scan
// of the text. `observer` is shown each run of words, each other word, each tag and each mark; it
// may be null.
const char* read_plain_text(const char* text, const char* text_end, TagEnds& tag_ends,
                            BoundedText& output, const ReadingObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_PLAIN_TEXT_H
