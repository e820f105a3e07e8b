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
    // To be called before a sentence is read to `speakable`.
    void begin(const char* sentence, const char* speakable) {
        sentence_ = sentence;
        speakable_ = speakable;
        readings_.clear();
        target_end_ = 0;
    }

    // `target_length` is the length of the speakable text with the reading of `source`. Words are
    // copied, with a blank after them.
    void add_plain_text(std::string_view source, int target_length) {
        add(source, static_cast<std::size_t>(target_length), tn::is_letter(source[0]));
    }
    void add_step(const tn::ReadingStep& step);

    // To be called once after that. Writes a place for each record to `place`, that of the head
    // record first. `events` lists the words, which are views of the speakable text. The source of
    // a word that was copied is its letters; of any other, all that was read with it.
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
