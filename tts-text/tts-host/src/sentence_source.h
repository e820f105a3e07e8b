// Which bytes of the text each byte of a sentence stands for.
#ifndef KAVI_HOST_SENTENCE_SOURCE_H
#define KAVI_HOST_SENTENCE_SOURCE_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "text_window.h"
#include "tts_places.h"
#include "tts_rewriter.h"

namespace kavi::host {

inline bool is_copy(const SourcePiece& piece) {
    return piece.length == piece.source.length && piece.rule == nullptr;
}

// Which pieces stand for what, asked for one place after the other.
class PieceCursor {
  public:
    // Of the pieces of a sentence that is not empty.
    explicit PieceCursor(const std::vector<SourcePiece>& pieces)
        : piece_(pieces.data()), end_(piece_ + pieces.size()) {}

    // The source of `length` bytes at `at`, not before the last ones.
    TextRange source_of(std::size_t at, std::size_t length) {
        if (is_copied(at, length)) return {piece_->source.offset + (at - piece_->at), length};
        return source_of_any(at, length);
    }

    // Whether these, not before the last ones, are a copy of one stretch of the text.
    bool is_copied(std::size_t at, std::size_t length) {
        go_on_to(at);
        return is_copy(*piece_) && at + length <= piece_->at + piece_->length;
    }

  private:
    void go_on_to(std::size_t at) {
        while (piece_ + 1 != end_ && piece_[1].at <= at) ++piece_;
    }
    TextRange source_of_any(std::size_t at, std::size_t length) const;

    const SourcePiece* piece_;
    const SourcePiece* end_;
};

// Looks on while a sentence is cut, and tells then what its pieces stand for.
class SentenceSource : public tn::CutObserver {
  public:
    // Before a sentence is cut from what the window holds.
    void begin() { replacements_.clear(); }

    void on_replaced(std::string_view source, int target_at, int length) override {
        replacements_.push_back(
            {source, static_cast<std::size_t>(target_at), static_cast<std::size_t>(length)});
    }

    // After it was cut, and before the window moves on.
    void find_pieces(const TextWindow& window, const tn::SentenceCutter& cutter);

    // After that, when what was read was rewritten: makes them pieces of the text as it was
    // written.
    void find_as_written(const RewrittenText& rewritten);

    const std::vector<SourcePiece>& pieces() const { return pieces_; }

  private:
    void add_as_written(std::size_t at, std::size_t begin, std::size_t end,
                        const RewrittenText& rewritten);

    struct Replacement {
        std::string_view source;  // in the window
        std::size_t at;
        std::size_t length;
    };

    std::vector<Replacement> replacements_;
    std::vector<SourcePiece> pieces_;
    std::vector<SourcePiece> as_read_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SENTENCE_SOURCE_H
