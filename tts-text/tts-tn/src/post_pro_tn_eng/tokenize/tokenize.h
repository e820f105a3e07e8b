// The tokenizer: a sentence to its speakable text.
#ifndef KAVI_TN_TOKENIZE_H
#define KAVI_TN_TOKENIZE_H

#include "../common/bounded_text.h"
#include "reading_observer.h"

namespace kavi::tn {

// PostProTnEng::eng_text_tokenize without an arena. `observer` may be null.
int tokenize(const char* sz_source_text, char* sz_target_text, const ReadingObserver* observer);

// Reads a sentence with the dispatcher alone, so that the observer is shown a step for each
// pattern, blanks included. Appends to `output`, a text in a buffer of SZ_TEXT_MAX_LEN bytes, and
// leaves blanks at its end.
void read_step_by_step(const char* sentence, BoundedText& output, const ReadingObserver& observer);

// Replaces every character outside tags that is not a letter by a blank, and cuts the blanks at the
// end.
void re_regular(char* sz_source_text);

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKENIZE_H
