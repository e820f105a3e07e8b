#include "reading_places.h"

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

std::string_view ReadingPlaces::source_of(std::string_view word) {
    const auto at = static_cast<std::size_t>(word.data() - speakable_);
    while (next_ < readings_.size() && readings_[next_].target_at <= at) ++next_;
    const Reading& reading = readings_[next_ - 1];
    const std::size_t letters = at - reading.target_at;
    const bool is_copy = tn::is_letter(reading.source[0]) &&
                         letters + word.size() <= reading.source.size() &&
                         reading.source.substr(letters, word.size()) == word;
    return is_copy ? reading.source.substr(letters, word.size()) : reading.source;
}

}  // namespace kavi::host
