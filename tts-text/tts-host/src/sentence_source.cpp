#include "sentence_source.h"

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

TextRange PieceCursor::source_of(std::size_t at, std::size_t length) {
    go_on_to(at);
    const TextRange first = source_of_byte(*piece_, at);
    if (length <= 1) return first;
    const std::size_t last_at = at + length - 1;
    if (last_at < piece_->at + piece_->length && is_copy(*piece_)) return {first.offset, length};
    PieceCursor end(*this);
    end.go_on_to(last_at);
    const TextRange last = source_of_byte(*end.piece_, last_at);
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
