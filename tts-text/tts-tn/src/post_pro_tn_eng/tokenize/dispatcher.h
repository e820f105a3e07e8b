// The dispatcher: walks over the tokens of a sentence and picks a reader for each pattern.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include "../common/bounded_text.h"
#include "reading_observer.h"
#include "token_window.h"

namespace kavi::tn {

struct WalkResult {
    Outcome outcome;
    bool is_all_words;  // every reading has only words and tags: re_regular is not needed
};

// Reads step by step from `first`, a token of the row, until the tokens end or a step has another
// outcome than Outcome::go_on, and appends the words to `output`, a text in a buffer of
// SZ_TEXT_MAX_LEN bytes. `observer` is shown each step; it may be null.
WalkResult walk(TokenWindow& tokens, const Token* first, BoundedText& output,
                const ReadingObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_DISPATCHER_H
