// Maps each byte of a derived text to its source bytes.
#ifndef KAVI_HOST_SOURCE_MAP_H
#define KAVI_HOST_SOURCE_MAP_H

#include <cstddef>
#include <vector>

#include "tts_places.h"

namespace kavi::host {

// The pieces of the derived text, in order and without a gap, each with its source. Pieces are
// appended at the end and dropped from the front. Positions are offsets in the derived text from
// its beginning, whatever has been dropped; an argument is the position of a byte in a piece or the
// end.
class SourceMap {
  public:
    void clear() {
        pieces_.clear();
        end_ = source_end_ = 0;
    }

    // ---- The derived text goes on with ----

    // A copy of `length` bytes at `offset`, where the source of a copy before it ends.
    void copied(std::size_t offset, std::size_t length);

    // `length` bytes that come from `source` as a whole, or continue such bytes. With length 0 the
    // source was removed; with an empty source the bytes were added. `by` may name the rule that
    // wrote them.
    void replaced(std::size_t length, TextRange source, const RuleId& by = {});

    // `length` more bytes of the piece at the end, which is no copy.
    void extended(std::size_t length);

    // What `map` has from `begin` to `end`.
    void append(const SourceMap& map, std::size_t begin, std::size_t end);

    // ----

    // Drops the pieces that end at `position` or before.
    void drop_before(std::size_t position);

    // Cuts a replaced piece at `position`; the part after it gets an empty source.
    void detach_at(std::size_t position);

    // Where the byte at `position` comes from: for one inside a piece that is no copy the end of
    // its source. At the end, where the source of the last piece ends.
    std::size_t offset_of(std::size_t position) const;

    // The source of the bytes from `begin` to `end`: all of what was replaced for any of
    // them. At least one byte.
    TextRange source_of(std::size_t begin, std::size_t end) const;

    // Tells of one position after the other whether the text may be parted there: in a copy, or
    // between two pieces.
    class JointCursor {
      public:
        JointCursor(const SourceMap& map, std::size_t position)
            : piece_(map.piece_at(position)), end_(map.pieces_.end()) {}

        // For a position that is not before the last one.
        bool is_joint(std::size_t position) {
            while (piece_ != end_ && piece_->at + piece_->length <= position) ++piece_;
            return piece_ == end_ || piece_->is_copy || position <= piece_->at;
        }

      private:
        std::vector<SourcePiece>::const_iterator piece_;
        std::vector<SourcePiece>::const_iterator end_;
    };

    const std::vector<SourcePiece>& pieces() const { return pieces_; }
    std::size_t end() const { return end_; }

  private:
    using Iterator = std::vector<SourcePiece>::const_iterator;

    // The piece with the byte at `position`, or the end.
    Iterator piece_at(std::size_t position) const;

    std::vector<SourcePiece> pieces_;
    std::size_t end_ = 0;
    std::size_t source_end_ = 0;  // of the last piece
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SOURCE_MAP_H
