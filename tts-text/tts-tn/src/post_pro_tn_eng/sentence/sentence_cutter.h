// The sentence cutter: cuts the first sentence off raw text, with spans that are all closed.
#ifndef KAVI_TN_SENTENCE_CUTTER_H
#define KAVI_TN_SENTENCE_CUTTER_H

#include <string_view>

#include "PostProcTN.h"
#include "abbreviation.h"

namespace kavi::tn {

// Receives where the sentence differs from its source. Everything else is a copy.
struct CutObserver {
    // The sentence has `length` bytes at offset `target_at` for `source`, a part of the source
    // text: the expansion of an abbreviation, or 0 bytes for a removed tag or blank.
    void (*on_replaced)(void* context, std::string_view source, int target_at, int length);
    void* context;
};

// The result of cutting: the extent of the first sentence and its spans.
struct CutSentence {
    bool is_well_formed;    // false: malformed markup; spans are open, the rest is to be dropped
    const char* end;        // the end of its source
    std::string_view rest;  // the source from where the next sentence begins
    int length;             // of the sentence as written to the target
    int length_before_closing;  // without the closing tags added at its end
    SsmlTagArr open_tags;       // open at its end; entries from begin_arr_len on are unspecified
};

// Writes the first sentence of `source`, which a NUL follows, to `target`, 4096 bytes that hold an
// empty text. `abbreviations` serves one source text: this call may continue one that earlier calls
// have begun. `observer` may be null.
void cut_sentence(std::string_view source, char* target, AbbreviationSearch& abbreviations,
                  const CutObserver* observer, CutSentence& sentence);

}  // namespace kavi::tn

#endif  // KAVI_TN_SENTENCE_CUTTER_H
