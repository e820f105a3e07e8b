#include "reading_places.h"

#include <algorithm>

namespace kavi::host {

void ReadingPlaces::add_step(const tn::SectionDispatcher& step) {
    const Section* last = step.first();
    while (last != step.last() && last->m_pnext != nullptr) last = last->m_pnext;
    const bool is_contraction = tn::SectionWindow::is_rewritten(step.first());
    const char* begin = tn::SectionWindow::source(step.first()).data() - (is_contraction ? 1 : 0);
    const std::string_view end = tn::SectionWindow::source(last);
    add_plain_text({begin, static_cast<std::size_t>(end.data() + end.size() - begin)},
                   step.output_before());
}

// The word at `at` belongs to this reading, which ends at `end`. A piece that begins with a letter
// is words that are copied, or one that is written out: then it is longer. Where the text has
// something left out among words, each of them is looked up.
inline ReadingPlaces::Stretch ReadingPlaces::stretch_at(std::size_t at, const Reading& reading,
                                                        std::size_t end,
                                                        PieceCursor& pieces) const {
    const std::size_t length = reading.source.size();
    const auto sentence_at = static_cast<std::size_t>(reading.source.data() - sentence_);
    if (!tn::is_letter(reading.source[0]) ||
        tn::is_letter(speakable_[reading.target_at + length])) {
        return {end, 0, 0, pieces.source_of(sentence_at, length)};
    }
    if (pieces.is_copied(sentence_at, length)) {
        const TextRange source = pieces.source_of(sentence_at, length);
        return {end, reading.target_at + length, source.offset - reading.target_at, source};
    }
    const std::size_t offset = at - reading.target_at;
    const std::size_t word_length = reading.source.substr(offset).find_first_of(' ');
    return {at + 1, 0, 0,
            pieces.source_of(sentence_at + offset, std::min(word_length, length - offset))};
}

void ReadingPlaces::find_places(const std::vector<SourcePiece>& pieces,
                                const tn::TextEvents& events, std::vector<WordPlace>& places) {
    readings_.push_back({{}, SZ_TEXT_MAX_LEN});
    const Reading* next = readings_.data();
    PieceCursor cursor(pieces);
    places.resize(static_cast<std::size_t>(events.n_words()) + 1);
    WordPlace* place = places.data();
    *place = {{cursor.source_of(0, 1).offset, 0}, 0};
    Stretch stretch = {};
    for (const tn::TextEvent& event : events) {
        if (event.kind != tn::TextEventKind::word) continue;
        const auto at = static_cast<std::size_t>(event.begin - speakable_);
        if (at >= stretch.end) {
            while (next->target_at <= at) ++next;
            stretch = stretch_at(at, next[-1], next->target_at, cursor);
        }
        ++place;
        place->at = at;
        if (at < stretch.copied_end) {
            place->source = {at + stretch.shift, event.length};
        } else {
            place->source = stretch.source;
        }
    }
}

}  // namespace kavi::host
