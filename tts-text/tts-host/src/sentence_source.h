// Which bytes of the text each byte of a sentence stands for.
#ifndef KAVI_HOST_SENTENCE_SOURCE_H
#define KAVI_HOST_SENTENCE_SOURCE_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "text_window.h"
#include "tts_places.h"

namespace kavi::host {

// The source of `length` bytes at `at` of a sentence that these pieces tile.
TextRange source_in(const SourcePiece* pieces, std::size_t n_pieces, std::size_t at,
                    std::size_t length);

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

    const std::vector<SourcePiece>& pieces() const { return pieces_; }

    TextRange source_of(std::size_t at, std::size_t length) const {
        return source_in(pieces_.data(), pieces_.size(), at, length);
    }

  private:
    struct Replacement {
        std::string_view source;  // in the window
        std::size_t at;
        std::size_t length;
    };

    std::vector<Replacement> replacements_;
    std::vector<SourcePiece> pieces_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SENTENCE_SOURCE_H
