#include "sentence_source.h"

#include <algorithm>
#include <iterator>

namespace kavi::host {

namespace {

// The source of one byte of a piece.
TextRange source_of_byte(const SourcePiece& piece, std::size_t at) {
    return piece.is_copy ? TextRange{piece.source.offset + (at - piece.at), 1} : piece.source;
}

bool is_same_in_any_case(std::string_view one, std::string_view other) {
    return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                      [](char a, char b) { return tn::to_lower(a) == tn::to_lower(b); });
}

// Whether an abbreviation is written exactly as in the first row that has it in any case. Then the
// engine has not searched the text ahead for another case of it.
bool is_in_first_case(std::string_view abbreviation) {
    const auto* const first =
        std::find_if(std::begin(s_spec_word_abbrevi), std::end(s_spec_word_abbrevi),
                     [=](const auto& row) { return is_same_in_any_case(row[0], abbreviation); });
    return (*first)[0] == abbreviation;
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
