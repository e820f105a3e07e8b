// Which bytes of a sentence each word of its speakable text was read from.
#ifndef KAVI_HOST_READING_PLACES_H
#define KAVI_HOST_READING_PLACES_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"
#include "sentence_source.h"
#include "tts_places.h"

namespace kavi::host {

// Looks on while a sentence is read.
class ReadingPlaces {
  public:
    // Before a sentence is read to `speakable`.
    void begin(const char* sentence, const char* speakable) {
        sentence_ = sentence;
        speakable_ = speakable;
        readings_.clear();
    }

    void add_plain_text(std::string_view source, int target_at) {
        readings_.push_back({source, static_cast<std::size_t>(target_at)});
    }
    void add_step(const tn::SectionDispatcher& step);

    // After that, once: where each of the words comes from that the builder has listed, all of them
    // views of the speakable text; record 0 is the head record. A word that was copied has its own
    // letters, any other all that was read with it.
    void find_places(const std::vector<SourcePiece>& pieces, const tn::TextEvents& events,
                     std::vector<WordPlace>& places);

  private:
    // A piece of the sentence, and where in the speakable text its reading begins.
    struct Reading {
        std::string_view source;
        std::size_t target_at;
    };

    // A stretch of the speakable text whose words have their places in one way.
    struct Stretch {
        std::size_t end;
        std::size_t copied_end;  // up to there it is a copy of one stretch of the text,
        std::size_t shift;       // so much further on there
        TextRange source;        // all that it was read from
    };

    Stretch stretch_at(std::size_t at, const Reading& reading, std::size_t end,
                       PieceCursor& pieces) const;

    const char* sentence_ = nullptr;
    const char* speakable_ = nullptr;
    std::vector<Reading> readings_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_PLACES_H
