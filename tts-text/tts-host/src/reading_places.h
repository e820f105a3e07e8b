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

// Observes the reading of a sentence.
class ReadingPlaces {
  public:
    // Before a sentence is read to `speakable`.
    void begin(const char* sentence, const char* speakable) {
        sentence_ = sentence;
        speakable_ = speakable;
        readings_.clear();
        target_end_ = 0;
    }

    // `target_length`: of the speakable text after it. A piece that begins with a letter is copied
    // with a blank after it, or is a word that is written out, and then longer.
    void add_plain_text(std::string_view source, int target_length) {
        const auto target_end = static_cast<std::size_t>(target_length);
        const bool is_copy = target_end - target_end_ == source.size() + 1;
        add(source, target_end, is_copy && tn::is_letter(source[0]));
    }
    void add_step(const tn::ReadingStep& step);

    // After that, once: where each of the words comes from that the builder has listed, all of them
    // views of the speakable text, to a place for each record; record 0 is the head record. A word
    // that was copied has its own letters, any other all that was read with it.
    void find_places(const std::vector<SourcePiece>& pieces, const tn::TextEvents& events,
                     WordPlace* place);

  private:
    // A piece of the sentence, and where in the speakable text its reading begins.
    struct Reading {
        std::size_t at;
        std::size_t length;
        std::size_t target_at;
        bool is_copy;
    };

    void add(std::string_view source, std::size_t target_end, bool is_copy) {
        readings_.push_back({static_cast<std::size_t>(source.data() - sentence_), source.size(),
                             target_end_, is_copy});
        target_end_ = target_end;
    }

    TextRange source_of_word(const Reading& reading, std::size_t offset, PieceCursor pieces) const;

    const char* sentence_ = nullptr;
    const char* speakable_ = nullptr;
    std::vector<Reading> readings_;
    std::size_t target_end_ = 0;  // of the last one
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_PLACES_H
