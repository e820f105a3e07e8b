#include "sentence_source.h"

#include <algorithm>

namespace kavi::host {

namespace {

bool is_copy(const SourcePiece& piece) {
    return piece.length == piece.source.length && !piece.is_abbreviation;
}

// The source of one byte of a piece.
TextRange source_of_byte(const SourcePiece& piece, std::size_t at) {
    return is_copy(piece) ? TextRange{piece.source.offset + (at - piece.at), 1} : piece.source;
}

}  // namespace

TextRange source_in(const SourcePiece* pieces, std::size_t n_pieces, std::size_t at,
                    std::size_t length) {
    const auto piece_at = [=](std::size_t byte) {
        return std::upper_bound(pieces, pieces + n_pieces, byte,
                                [](std::size_t b, const SourcePiece& p) { return b < p.at; }) -
               1;
    };
    const TextRange first = source_of_byte(*piece_at(at), at);
    if (length <= 1) return first;
    const std::size_t last_at = at + length - 1;
    const TextRange last = source_of_byte(*piece_at(last_at), last_at);
    return {first.offset, last.offset + last.length - first.offset};
}

void SentenceSource::find_pieces(const TextWindow& window, const tn::SentenceCutter& cutter) {
    pieces_.clear();
    TextWindow::Sources sources(window, pieces_);
    for (const Replacement& r : replacements_) {
        sources.copied_up_to(r.source.data());
        sources.replaced(r.source, r.length);
    }
    sources.copied_up_to(cutter.end());
    const auto closing = static_cast<std::size_t>(cutter.length() - cutter.length_before_closing());
    if (closing > 0) sources.added(closing);
}

}  // namespace kavi::host
