// Which bytes of a sentence each word of its speakable text was read from.
#ifndef KAVI_HOST_READING_PLACES_H
#define KAVI_HOST_READING_PLACES_H

#include <cstddef>
#include <string_view>
#include <vector>

#include "for_host_layer.h"

namespace kavi::host {

// Looks on while a sentence is read.
class ReadingPlaces {
  public:
    // Before a sentence is read to `speakable`.
    void begin(const char* speakable) {
        speakable_ = speakable;
        readings_.clear();
        next_ = 0;
    }

    void add_plain_text(std::string_view source, int target_at) {
        readings_.push_back({source, static_cast<std::size_t>(target_at)});
    }
    void add_step(const tn::SectionDispatcher& step);

    // What a word of the speakable text was read from; each word stands after the last one asked
    // for. A word that was copied has its own letters, any other all that was read with it.
    std::string_view source_of(std::string_view word);

  private:
    // A piece of the sentence, and where in the speakable text its reading begins.
    struct Reading {
        std::string_view source;
        std::size_t target_at;
    };

    const char* speakable_ = nullptr;
    std::vector<Reading> readings_;
    std::size_t next_ = 0;  // the reading after that of the last word
};

// Stores where each word begins in the speakable text, beside what a WordFiller does.
class PlacingFiller : public tn::WordFiller {
  public:
    PlacingFiller(mem_stack_handle arena, UtteranceSyllable* record, const tn::SpanChain* chain,
                  std::vector<const char*>& begins)
        : WordFiller(arena, record, chain), begins_(begins) {}

    // A copy inside a span.
    PlacingFiller(const PlacingFiller& outside) = default;
    PlacingFiller& operator=(const PlacingFiller&) = delete;

    bool word(std::string_view word, const char* begin) {
        begins_.push_back(begin);
        return WordFiller::word(word, begin);
    }

  private:
    std::vector<const char*>& begins_;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_READING_PLACES_H
