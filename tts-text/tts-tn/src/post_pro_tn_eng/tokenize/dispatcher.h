// The dispatcher: decides, token by token, how a sentence is spoken.
#ifndef KAVI_TN_DISPATCHER_H
#define KAVI_TN_DISPATCHER_H

#include "../common/bounded_text.h"
#include "reading_observer.h"
#include "token_window.h"

namespace kavi::tn {

struct WalkResult {
    Outcome outcome;
    bool is_all_words;  // all readings were words and tags
};

// Reads from `first`, a token of the row, step by step to the end of the tokens, or as far as the
// walk goes on. Everything is appended to `output`, a text in a buffer of SZ_TEXT_MAX_LEN bytes.
// `observer` is shown each step; it may be null.
WalkResult walk(TokenWindow& tokens, const Token* first, BoundedText& output,
                const ReadingObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_DISPATCHER_H
