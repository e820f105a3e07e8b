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

// cppcheck-suppress uninitMemberVar ; of the stretch, its end is enough
ReadingPlaces::Finder::Finder(ReadingPlaces& readings, const std::vector<SourcePiece>& pieces,
                              int n_records, std::vector<WordPlace>& places)
    : sentence_(readings.sentence_), speakable_(readings.speakable_), pieces_(pieces) {
    readings.readings_.push_back({{}, SZ_TEXT_MAX_LEN});
    next_ = readings.readings_.data();
    places.resize(static_cast<std::size_t>(n_records));
    place_ = places.data();
    *place_ = {{pieces_.source_of(0, 1).offset, 0}, 0};
}

// The word at `at` belongs to the last reading that begins there or before. A piece that begins
// with a letter is words that are copied, or one that is written out: then it is longer. Where the
// text has something left out among words, each of them is looked up.
ReadingPlaces::Finder::Stretch ReadingPlaces::Finder::stretch_at(std::size_t at) {
    while (next_->target_at <= at) ++next_;
    const Reading& reading = next_[-1];
    const std::size_t length = reading.source.size();
    const auto sentence_at = static_cast<std::size_t>(reading.source.data() - sentence_);
    if (!tn::is_letter(reading.source[0]) ||
        tn::is_letter(speakable_[reading.target_at + length])) {
        return {next_->target_at, 0, 0, pieces_.source_of(sentence_at, length)};
    }
    if (pieces_.is_copied(sentence_at, length)) {
        const TextRange source = pieces_.source_of(sentence_at, length);
        return {next_->target_at, reading.target_at + length, source.offset - reading.target_at,
                source};
    }
    const std::size_t offset = at - reading.target_at;
    const std::size_t word_length = reading.source.substr(offset).find_first_of(' ');
    return {at + 1, 0, 0,
            pieces_.source_of(sentence_at + offset, std::min(word_length, length - offset))};
}

void ReadingPlaces::Finder::add_words(const tn::TextEvents& events) {
    for (const tn::TextEvent& event : events) {
        if (event.kind != tn::TextEventKind::word) continue;
        const auto at = static_cast<std::size_t>(events.begin_of(event) - speakable_);
        if (at >= stretch_.end) stretch_ = stretch_at(at);
        const bool is_copied = at < stretch_.copied_end;
        *++place_ = {is_copied ? TextRange{at + stretch_.shift, event.length} : stretch_.source,
                     at};
    }
}

}  // namespace kavi::host
