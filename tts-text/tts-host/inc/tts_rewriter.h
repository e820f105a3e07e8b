// Text that is read in the place of what was written.
#ifndef KAVI_TTS_REWRITER_H
#define KAVI_TTS_REWRITER_H

#include <cstddef>
#include <string>
#include <string_view>

#include "tts_places.h"

namespace kavi {

// A piece of a text, and the words that are read for it.
struct Rewriting {
    TextRange source = {0, 0};
    std::string words;  // "<" and NUL are read as blanks; a blank for nothing
    RuleId by;          // its texts live as long as the rewriter

    // The rewriter's own: where the markup tag ends that it looked for last.
    std::size_t tag_end = 0;
};

// Rewrites a text piece by piece before it is read. One object may serve several threads.
class TextRewriter {
  public:
    virtual ~TextRewriter() = default;

    // Moves `rewriting` on to the next piece of `text` that is rewritten; the text between two
    // pieces is read as it is. A new Rewriting is before the first piece, and false is answered
    // after the last: then `rewriting` is not changed but for its memory. Pieces are in order, do
    // not overlap, have a source of at least one byte, and are never inside a tag of the markup
    // language. `text` is the same in each call.
    virtual bool next(std::string_view text, Rewriting& rewriting) const = 0;
};

// The whole of a text as it is read.
std::string rewritten(const TextRewriter& rewriter, std::string_view text);

}  // namespace kavi

#endif  // KAVI_TTS_REWRITER_H
