#include "sentence_source.h"

#include <algorithm>

namespace kavi::host {

namespace {

// The source of one byte of a piece.
TextRange source_of_byte(const SourcePiece& piece, std::size_t at) {
    return piece.is_copy ? TextRange{piece.source.offset + (at - piece.at), 1} : piece.source;
}

// Whether an abbreviation is written as in the first row that has it in any case: of that one, no
// other case is looked for.
bool is_in_first_case(std::string_view abbreviation) {
    for (const auto& row : s_spec_word_abbrevi) {
        const std::string_view written = row[0];
        const bool is_row =
            std::equal(written.begin(), written.end(), abbreviation.begin(), abbreviation.end(),
                       [](char a, char b) { return tn::to_lower(a) == tn::to_lower(b); });
        if (is_row) return written == abbreviation;
    }
    return false;
}

}  // namespace

const SourcePiece* PieceCursor::piece_at(const std::vector<SourcePiece>& pieces, std::size_t at) {
    const auto after = std::partition_point(pieces.begin() + 1, pieces.end(),
                                            [=](const SourcePiece& p) { return p.at <= at; });
    return &*(after - 1);
}

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

void SentenceSource::find_pieces(TextWindow& window, const tn::CutSentence& cut) {
    map_.clear();
    const char* from = window.text();
    for (const Replacement& r : replacements_) {
        window.append_sources(from, r.source.data(), map_);
        map_.replaced(r.length, window.source_of(r.source),
                      {r.length > 0 ? "abbreviation" : nullptr});
        from = r.source.data() + r.source.size();
    }
    window.append_sources(from, cut.end, map_);
    const auto closing = static_cast<std::size_t>(cut.length - cut.length_before_closing);
    if (closing > 0) map_.replaced(closing, {window.source_offset(cut.end), 0});
}

bool SentenceSource::depends_on_text_ahead() const {
    return std::any_of(replacements_.begin(), replacements_.end(), [](const Replacement& r) {
        return r.length > 0 && !is_in_first_case(r.source);
    });
}

}  // namespace kavi::host
