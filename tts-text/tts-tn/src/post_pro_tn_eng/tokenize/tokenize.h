// A sentence to its speakable text.
#ifndef KAVI_TN_TOKENIZE_H
#define KAVI_TN_TOKENIZE_H

#include "../common/bounded_text.h"
#include "reading_observer.h"

namespace kavi::tn {

// What PostProTnEng::eng_text_tokenize does; `observer` may be null.
int tokenize(const char* sz_source_text, char* sz_target_text, const ReadingObserver* observer);

// Appends what a sentence reads as to `output`, a text in a buffer of SZ_TEXT_MAX_LEN bytes, and
// shows the observer all of it step by step. Blanks at its end stay.
void read_step_by_step(const char* sentence, BoundedText& output, const ReadingObserver& observer);

// Leaves only letters and blanks outside tags, and no blank at the end.
void re_regular(char* sz_source_text);

}  // namespace kavi::tn

#endif  // KAVI_TN_TOKENIZE_H
