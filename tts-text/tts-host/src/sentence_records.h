// Building the records of one sentence after the other.
#ifndef KAVI_HOST_SENTENCE_RECORDS_H
#define KAVI_HOST_SENTENCE_RECORDS_H

#include <cstddef>
#include <string_view>

#include "for_host_layer.h"

namespace kavi::host {

// Records as the engine's builder makes them, but all that a sentence needs is one block of the
// arena, which is kept for the next sentence.
class SentenceRecords {
  public:
    // The arena stays the caller's, who calls release() before it ends.
    explicit SentenceRecords(mem_stack_handle arena) : arena_(arena) {}
    SentenceRecords(const SentenceRecords&) = delete;
    SentenceRecords& operator=(const SentenceRecords&) = delete;

    // Builds the records of a sentence, which replace the last ones. A NUL follows its speakable
    // text. `events` receives the items of that. False when the arena has no room for a block, or
    // the engine's builder would fail.
    bool build(std::string_view speakable, tn::TextEvents& events);

    // The records, with the head record, until the next call.
    const UtteranceSyllable* records() const {
        return static_cast<const UtteranceSyllable*>(block_);
    }
    int size() const { return size_; }

    // Gives the block back.
    void release();

  private:
    bool reserve(std::size_t size);

    mem_stack_handle arena_;
    void* block_ = nullptr;
    std::size_t capacity_ = 0;
    int size_ = 0;
};

}  // namespace kavi::host

#endif  // KAVI_HOST_SENTENCE_RECORDS_H
