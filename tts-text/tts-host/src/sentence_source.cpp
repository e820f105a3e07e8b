#include "sentence_source.h"

#include <algorithm>

namespace kavi::host {

namespace {

// The source of one byte of a piece.
TextRange source_of_byte(const SourcePiece& piece, std::size_t at) {
    return is_copy(piece) ? TextRange{piece.source.offset + (at - piece.at), 1} : piece.source;
}

}  // namespace

TextRange PieceCursor::source_of_any(std::size_t at, std::size_t length) const {
    const TextRange first = source_of_byte(*piece_, at);
    if (length <= 1) return first;
    const std::size_t last_at = at + length - 1;
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

void SentenceSource::find_as_written(const RewrittenText& rewritten) {
    pieces_.swap(as_read_);
    pieces_.clear();
    for (const SourcePiece& piece : as_read_) {
        const std::size_t end = piece.source.offset + piece.source.length;
        if (is_copy(piece)) {
            add_as_written(piece.at, piece.source.offset, end, rewritten);
        } else {
            const std::size_t begin = rewritten.begin_of(piece.source.offset);
            const std::size_t length = rewritten.end_of(end) - begin;
            pieces_.push_back({piece.at, piece.length, {begin, length}, piece.rule});
        }
    }
}

// A copy of the rewritten text from `begin` to `end`: copies of the text as it was written, and
// what was written in the place of others.
void SentenceSource::add_as_written(std::size_t at, std::size_t begin, std::size_t end,
                                    const RewrittenText& rewritten) {
    while (begin < end) {
        const Rewriting* next = rewritten.first_from(begin);
        const bool is_inside = next != nullptr && next->at <= begin;
        std::size_t piece_end = end;
        if (next != nullptr) {
            piece_end = std::min(end, is_inside ? next->at + next->length : next->at);
        }
        const std::size_t length = piece_end - begin;
        if (is_inside) {
            pieces_.push_back(
                {at, length, next->source, next->rule, next->file, next->line_number});
        } else {
            pieces_.push_back({at, length, {rewritten.begin_of(begin), length}, nullptr});
        }
        at += length;
        begin = piece_end;
    }
}

}  // namespace kavi::host
