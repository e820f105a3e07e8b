// Text that is read in the place of what was written.
#ifndef KAVI_TTS_REWRITER_H
#define KAVI_TTS_REWRITER_H

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tts_places.h"

namespace kavi {

// What was written at `source`, and the words that stand for it.
struct Rewriting {
    TextRange source;
    std::size_t at;  // of the words, in the rewritten text
    std::size_t length;
    const char* rule;         // lives as long as the rewriter
    const char* file;         // of the line that says so; null for none
    std::size_t line_number;  // there, from 1
};

// A text of which pieces are rewritten; the rest is a copy.
struct RewrittenText {
    std::string text;
    std::vector<Rewriting> rewritings;  // in order, not overlapping

    // Where in the text as written a place of this one is: for one inside the words of a rewriting,
    // the end of its source or the begin.
    std::size_t end_of(std::size_t at) const;
    std::size_t begin_of(std::size_t at) const;

    // The first rewriting whose words end after `at`, or null.
    const Rewriting* first_from(std::size_t at) const;
};

// Rewrites a text before it is read. One object may serve several threads.
class TextRewriter {
  public:
    virtual ~TextRewriter() = default;

    // Puts the rewritten text into `rewritten`, whatever that has held.
    virtual void rewrite(std::string_view text, RewrittenText& rewritten) const = 0;
};

}  // namespace kavi

#endif  // KAVI_TTS_REWRITER_H
