#include "source_map.h"

#include <algorithm>
#include <cassert>

namespace kavi::host {

void SourceMap::copied(std::size_t offset, std::size_t length) {
    source_end_ = offset + length;
    if (!pieces_.empty()) {
        SourcePiece& last = pieces_.back();
        if (last.is_copy) {
            assert(last.source.offset + last.source.length == offset);
            last.length += length;
            last.source.length += length;
            end_ += length;
            return;
        }
    }
    pieces_.push_back({end_, length, {offset, length}, true, {}});
    end_ += length;
}

void SourceMap::replaced(std::size_t length, TextRange source, const RuleId& by) {
    end_ += length;
    source_end_ = source.offset + source.length;
    if (!pieces_.empty() && source.length > 0) {
        SourcePiece& last = pieces_.back();
        const bool is_same = !last.is_copy && last.source.offset == source.offset &&
                             last.source.length == source.length;
        if (is_same) {
            last.length += length;
            return;
        }
    }
    pieces_.push_back({end_ - length, length, source, false, by});
}

void SourceMap::extended(std::size_t length) {
    assert(!pieces_.empty() && !pieces_.back().is_copy);
    pieces_.back().length += length;
    end_ += length;
}

void SourceMap::append(const SourceMap& map, std::size_t begin, std::size_t end) {
    for (Iterator piece = map.piece_at(begin); begin < end; ++piece) {
        const std::size_t length = std::min(end, piece->at + piece->length) - begin;
        if (piece->is_copy) {
            copied(piece->source.offset + (begin - piece->at), length);
        } else {
            replaced(length, piece->source, piece->by);
        }
        begin += length;
    }
}

void SourceMap::drop_before(std::size_t position) {
    pieces_.erase(pieces_.begin(), piece_at(position));
}

void SourceMap::detach_at(std::size_t position) {
    if (JointCursor(*this, position).is_joint(position)) return;
    SourcePiece& piece = pieces_[static_cast<std::size_t>(piece_at(position) - pieces_.begin())];
    piece.length = piece.at + piece.length - position;
    piece.at = position;
    piece.source = {piece.source.offset + piece.source.length, 0};
}

std::size_t SourceMap::offset_of(std::size_t position) const {
    const Iterator piece = piece_at(position);
    if (piece == pieces_.end()) return source_end_;
    if (piece->is_copy) return piece->source.offset + (position - piece->at);
    return piece->source.offset + (position > piece->at ? piece->source.length : 0);
}

TextRange SourceMap::source_of(std::size_t begin, std::size_t end) const {
    assert(begin < end);
    const Iterator first = piece_at(begin);
    const std::size_t offset =
        first->is_copy ? first->source.offset + (begin - first->at) : first->source.offset;
    const Iterator last = piece_at(end - 1);
    const std::size_t source_end = last->is_copy ? last->source.offset + (end - last->at)
                                                 : last->source.offset + last->source.length;
    return {offset, source_end - offset};
}

SourceMap::Iterator SourceMap::piece_at(std::size_t position) const {
    return std::partition_point(pieces_.begin(), pieces_.end(), [=](const SourcePiece& piece) {
        return piece.at + piece.length <= position;
    });
}

}  // namespace kavi::host
