#include "reading_places.h"

#include <algorithm>

namespace kavi::host {

void ReadingPlaces::add_step(const tn::ReadingStep& step) {
    if (step.rule == tn::ReadingRule::silent) return;
    const char* begin = step.first->begin;
    const std::string_view last = step.end[-1].text();
    add({begin, static_cast<std::size_t>(last.data() + last.size() - begin)},
        static_cast<std::size_t>(step.output_length), false);
}

// The source of the word at `offset` of copied words that are not one range of the text.
TextRange ReadingPlaces::source_of_word(const Reading& reading, std::size_t offset,
                                        PieceCursor pieces) const {
    const std::string_view rest(sentence_ + reading.at + offset, reading.length - offset);
    return pieces.source_of(reading.at + offset, std::min(rest.find(' '), rest.size()));
}

// What changes from word to word is in local variables, which can stay in registers.
void ReadingPlaces::find_places(const std::vector<SourcePiece>& pieces,
                                const tn::TextEvents& events, WordPlace* place) {
    readings_.emplace_back().target_at = SZ_TEXT_MAX_LEN;  // after the last
    PieceCursor cursor(pieces);
    *place++ = {{cursor.source_of(0, 0).offset, 0}, 0};

    const char* const speakable = speakable_;
    const Reading* reading = readings_.data();
    const tn::TextEvent* event = events.begin();
    const WordPlace* const places_end = place + events.n_words();
    std::size_t at = 0;  // the word's
    const auto find_word = [&] {
        while (event->kind != tn::TextEventKind::word) ++event;
        at = static_cast<std::size_t>(event->begin - speakable);
    };
    const auto next_word = [&] {
        if (place == places_end) return false;
        ++event;
        find_word();
        return true;
    };
    bool any = place != places_end;
    if (any) find_word();
    while (any) {
        while (reading[1].target_at <= at) ++reading;
        const std::size_t end = reading[1].target_at;
        if (reading->is_copy) {
            if (cursor.is_copied(reading->at, reading->length)) {
                const std::size_t shift = cursor.copied_from(reading->at) - reading->target_at;
                do {
                    *place++ = {{at + shift, event->length}, at};
                    any = next_word();
                } while (any && at < end);
            } else {
                *place++ = {source_of_word(*reading, at - reading->target_at, cursor), at};
                any = next_word();
            }
        } else {
            const TextRange source = cursor.source_of(reading->at, reading->length);
            do {
                *place++ = {source, at};
                any = next_word();
            } while (any && at < end);
        }
    }
}

}  // namespace kavi::host
