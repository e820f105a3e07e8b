#include "sentence_source.h"

#include <algorithm>

namespace kavi::host {

namespace {

// The source of one byte of a piece.
TextRange source_of_byte(const SourcePiece& piece, std::size_t at) {
    return is_copy(piece) ? TextRange{piece.source.offset + (at - piece.at), 1} : piece.source;
}

}  // namespace

// The first of the bytes is in `piece`. No cursor is changed, so that it can stay in registers.
TextRange PieceCursor::source_of_any(const SourcePiece* piece, const SourcePiece* last,
                                     std::size_t at, std::size_t length) {
    const TextRange begin = source_of_byte(*piece, at);
    if (length <= 1) return begin;
    const std::size_t end_at = at + length - 1;
    while (piece != last && piece[1].at <= end_at) ++piece;
    const TextRange end = source_of_byte(*piece, end_at);
    return {begin.offset, end.offset + end.length - begin.offset};
}

void SentenceSource::find_pieces(const TextWindow& window, const tn::SentenceCutter& cutter) {
    pieces_.clear();
    const std::optional<std::size_t> from = window.copied_from(cutter.end());
    if (from.has_value() && replacements_.empty() &&
        cutter.length() == cutter.length_before_closing()) {  // as most sentences
        SourcePiece& all = pieces_.emplace_back();
        all.length = static_cast<std::size_t>(cutter.length());
        all.source = {*from, all.length};
    } else {
        find_several(window, cutter);
    }
}

void SentenceSource::find_several(const TextWindow& window, const tn::SentenceCutter& cutter) {
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
