// Rewriting a text before it is read.
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
    std::string words;  // "<" and NUL are read as blanks; " " where nothing is to be read
    RuleId by;

    // Set by the caller while more text may follow: then a result has to hold whatever follows, and
    // when next() returns false, `decided` is the offset up to which there is no piece.
    bool may_go_on = false;
    std::size_t decided = 0;

    // State of the rewriter: where the markup tag ends that it looked for last, the last character
    // of the last words, and whether `decided` is inside a word.
    std::size_t tag_end = 0;
    char last = '\0';
    bool is_inside_word = false;

    // Adjusts the offsets to a text without its first `length` bytes, which have been decided
    // about.
    void drop(std::size_t length);
};

// The most bytes of a tag of the markup language: a "<" without a ">" within them begins none.
constexpr std::size_t TAG_MAX = 16384;

// The offset of the next `c` among the `most` bytes from `at` on; npos for none. `at` is at most
// the size of the text and does not decrease from call to call. `searched`, 0 at first, remembers
// what was searched, so that all searches of a text together are linear.
std::size_t find_ahead(std::string_view text, std::size_t at, char c, std::size_t most,
                       std::size_t& searched);

// Rewrites a text piece by piece before it is read. One object may serve several threads.
class TextRewriter {
  public:
    virtual ~TextRewriter() = default;

    // Moves `rewriting` on to the next piece of `text` that is rewritten; the text between two
    // pieces is read as it is. A new Rewriting is before the first piece. False after the last:
    // then `rewriting` keeps its piece. Pieces are in order, do not overlap, have a source of at
    // least one byte, and are never inside a tag of the markup language. `text` is the same in each
    // call.
    virtual bool next(std::string_view text, Rewriting& rewriting) const = 0;

    // Whether `next` heeds `may_go_on` and takes a text that grows: from call to call more is added
    // at its end, and what is dropped at its begin is more than LOOK_BACK_MAX bytes before
    // `decided`. Otherwise a TtsStream reads its text only at the end.
    virtual bool takes_growing_texts() const { return false; }
    static constexpr std::size_t LOOK_BACK_MAX = 256;
};

// The whole of a text as it is read.
std::string rewritten(const TextRewriter& rewriter, std::string_view text);

}  // namespace kavi

#endif  // KAVI_TTS_REWRITER_H
