// The pre-pass: raw text to one sentence, with markup that is well formed by itself.
#ifndef KAVI_TN_SENTENCE_CUTTER_H
#define KAVI_TN_SENTENCE_CUTTER_H

#include <string_view>

#include "PostProcTN.h"
#include "abbreviation.h"

namespace kavi::tn {

// Is told what the sentence has otherwise than its source; everything else is copied byte by byte.
struct CutObserver {
    // `source` is `length` bytes at `target_at` of the sentence: an expanded abbreviation, or
    // nothing in the place of a removed tag or a blank.
    void (*on_replaced)(void* context, std::string_view source, int target_at, int length);
    void* context;
};

// What the first sentence of a source text is.
struct CutSentence {
    bool is_well_formed;        // else its spans are open, and what follows is not to be read
    const char* end;            // of its own source; what has been added closes its spans
    std::string_view rest;      // from where the next one begins, after what is silent
    int length;                 // of the sentence
    int length_before_closing;  // without what closes its spans
    SsmlTagArr open_tags;       // at its end; of the entries, those below begin_arr_len hold texts
};

// Writes the first sentence of `source`, which a NUL follows, to `target`, 4096 bytes that hold an
// empty text. `abbreviations` may have served earlier sentences of the same source; `observer` may
// be null.
void cut_sentence(std::string_view source, char* target, AbbreviationSearch& abbreviations,
                  const CutObserver* observer, CutSentence& sentence);

}  // namespace kavi::tn

#endif  // KAVI_TN_SENTENCE_CUTTER_H
