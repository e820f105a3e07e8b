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

    // Set by the caller while the text may go on after what there is of it: what is answered has to
    // hold whatever follows. Then, when false is answered, `decided` is how far there is no piece.
    bool may_go_on = false;
    std::size_t decided = 0;

    // The rewriter's own: where the markup tag ends that it looked for last, the last character of
    // the last words, and whether `decided` is inside a word.
    std::size_t tag_end = 0;
    char last = '\0';
    bool is_inside_word = false;

    // From now on the text is without its first `length` bytes, which have been decided about.
    void drop(std::size_t length);
};

// The most bytes of a tag of the markup language: a "<" without a ">" within them begins none.
constexpr std::size_t TAG_MAX = 16384;

// The next `c` among the `most` bytes from `at` on; npos for none. `searched` is 0 at first, and
// makes the searches of a text linear: `at` does not move back.
std::size_t find_ahead(std::string_view text, std::size_t at, char c, std::size_t most,
                       std::size_t& searched);

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

    // Whether `next` also takes a text that is still being written, and heeds `may_go_on`: it has
    // more at its end than in the call before, and what is dropped at its begin is further back
    // than LOOK_BACK_MAX bytes before `decided`. A text of a TtsStream is read at its end
    // otherwise.
    virtual bool takes_growing_texts() const { return false; }
    static constexpr std::size_t LOOK_BACK_MAX = 256;
};

// The whole of a text as it is read.
std::string rewritten(const TextRewriter& rewriter, std::string_view text);

}  // namespace kavi

#endif  // KAVI_TTS_REWRITER_H
