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

void ReadingPlaces::find_places(const std::vector<SourcePiece>& pieces,
                                const std::vector<const char*>& word_begins,
                                const UtteranceSyllable* records, std::vector<WordPlace>& places) {
    next_ = next_at_ = copied_end_ = 0;
    PieceCursor cursor(pieces);
    places.clear();
    places.push_back({{cursor.source_of(0, 1).offset, 0}, 0});
    for (const char* begin : word_begins) {
        const auto at = static_cast<std::size_t>(begin - speakable_);
        if (at >= next_at_) go_on_to(at, cursor);
        const auto length = static_cast<std::size_t>((++records)->syl_len - 1);
        places.push_back({at < copied_end_ ? TextRange{at + shift_, length} : source_, at});
    }
}

// Moves on to the reading that the word at `at` belongs to. A piece that begins with a letter is
// words that are copied, or one that is written out: then it is longer. Where the text has
// something left out among words, each of them is looked up.
void ReadingPlaces::go_on_to(std::size_t at, PieceCursor& pieces) {
    while (next_ < readings_.size() && readings_[next_].target_at <= at) ++next_;
    next_at_ = next_ < readings_.size() ? readings_[next_].target_at : SZ_TEXT_MAX_LEN;
    const Reading& reading = readings_[next_ - 1];
    const std::size_t length = reading.source.size();
    const auto sentence_at = static_cast<std::size_t>(reading.source.data() - sentence_);
    source_ = pieces.source_of(sentence_at, length);
    copied_end_ = 0;
    if (!tn::is_letter(reading.source[0]) ||
        tn::is_letter(speakable_[reading.target_at + length])) {
        return;
    }
    if (pieces.is_copied(sentence_at, length)) {
        copied_end_ = reading.target_at + length;
        shift_ = source_.offset - reading.target_at;
        return;
    }
    const std::size_t offset = at - reading.target_at;
    const std::size_t word_length = reading.source.substr(offset).find_first_of(' ');
    source_ = pieces.source_of(sentence_at + offset, std::min(word_length, length - offset));
    next_at_ = at + 1;
}

}  // namespace kavi::host
