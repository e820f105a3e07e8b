// Which bytes of the text each byte of a sentence comes from.
#ifndef KAVI_HOST_SENTENCE_SOURCE_H
#define KAVI_HOST_SENTENCE_SOURCE_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "source_map.h"
#include "text_window.h"
#include "tts_places.h"

namespace kavi::host {

// A cursor over the pieces of a sentence: offsets are asked for in increasing order.
class PieceCursor {
  public:
    // Over the pieces of a sentence that is not empty; the first offset asked for is `at` or later.
    explicit PieceCursor(const std::vector<SourcePiece>& pieces, std::size_t at = 0)
        : piece_(piece_at(pieces, at)), last_(&pieces.back()) {
        look_at_piece();
    }

    // Whether `length` bytes at `at`, not before the last ones, are a copy of one range of the
    // text.
    bool is_copied(std::size_t at, std::size_t length) {
        while (piece_ != last_ && piece_[1].at <= at) {
            ++piece_;
            look_at_piece();
        }
        return at + length < after_copy_;
    }

    // The offset in the text of the byte at `at`, which is_copied() has found to be copied.
    std::size_t copied_from(std::size_t at) const {
        return piece_->source.offset - piece_->at + at;
    }

    // The source of `length` bytes at `at`, not before the last ones.
    TextRange source_of(std::size_t at, std::size_t length) {
        if (is_copied(at, length)) return {copied_from(at), length};
        return source_of_any(piece_, last_, at, length);
    }

  private:
    void look_at_piece() { after_copy_ = piece_->is_copy ? piece_->at + piece_->length + 1 : 0; }

    static const SourcePiece* piece_at(const std::vector<SourcePiece>& pieces, std::size_t at);
    static TextRange source_of_any(const SourcePiece* piece, const SourcePiece* last,
                                   std::size_t at, std::size_t length);

    const SourcePiece* piece_;
    const SourcePiece* last_;
    std::size_t after_copy_;  // one more than where the piece ends, if it is a copy; else 0
};

// Observes the cutting of a sentence, and finds afterwards where its pieces come from.
class SentenceSource {
  public:
    // To be called before a sentence is cut from the window.
    void begin() { replacements_.clear(); }

    tn::CutObserver observer() {
        return {[](void* context, std::string_view source, int target_at, int length) {
                    static_cast<SentenceSource*>(context)->replacements_.push_back(
                        {source, static_cast<std::size_t>(target_at),
                         static_cast<std::size_t>(length)});
                },
                this};
    }

    // To be called after it was cut, before the window moves on.
    void find_pieces(TextWindow& window, const tn::CutSentence& cut);

    const std::vector<SourcePiece>& pieces() const { return map_.pieces(); }

    // Whether an abbreviation was taken for one only because no other case of it is in the window.
    bool depends_on_text_ahead() const;

  private:
    struct Replacement {
        std::string_view source;  // in the window
        std::size_t at;
        std::size_t length;
    };

    std::vector<Replacement> replacements_;
    SourceMap map_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SENTENCE_SOURCE_H
