// The word filler: stores words, marks and attributes in records.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include <cstring>
#include <string_view>

#include "../common/short_copy.h"
#include "MemoryStack.h"
#include "span_chain.h"
#include "text_reader.h"

namespace kavi::tn {

// Sets the break time of a record to the first 19 characters of `value`.
void set_breaktime(UtteranceSyllable& record, std::string_view value);

// Stores words in one record after the other, with their marks and the attributes of the open
// spans.
class WordFiller {
  public:
    // `record` is the first to fill. At least one precedes it. It and those after it have no
    // attributes yet.
    WordFiller(mem_stack_handle arena, UtteranceSyllable* record)
        : arena_(arena), record_(record) {}
    WordFiller(const WordFiller&) = delete;
    WordFiller& operator=(const WordFiller&) = delete;

    // The record of the next word.
    UtteranceSyllable* record() const { return record_; }

    // Stores an item. False when the arena refused the storage of a word, or the span chain has no
    // room: no more items may be stored.
    bool take(const TextEvent& event) {
        if (event.kind == TextEventKind::word) return store(event.text());
        return take_tag(event);
    }

    // Opens a span, or several as lists, around the words that follow. False when the span chain
    // has no room.
    bool enter_span(std::string_view name, std::string_view value) {
        return spans_.enter(name, value);
    }

    // Stores a word at the default pause. False when the arena refused its storage: no block is
    // kept.
    bool store(std::string_view word) {
        constexpr std::size_t ZHUYIN_MIN = 128;
        constexpr std::size_t ZHUYIN_PER_CHARACTER = 10;
        const std::size_t size = word.size() + 1;
        const bool is_long = word.size() > ZHUYIN_MIN / ZHUYIN_PER_CHARACTER;
        const std::size_t zhuyin_size = is_long ? ZHUYIN_PER_CHARACTER * word.size() : ZHUYIN_MIN;
        char* syllable = request(size);
        char* zhuyin = syllable != nullptr ? request(zhuyin_size) : nullptr;
        if (zhuyin == nullptr) {
            mem_stack_release_buf(syllable, size, MEM_COMMON, arena_);
            record_->syllable = nullptr;
            return false;
        }
        copy_short(syllable, word.data(), word.size());
        syllable[word.size()] = '\0';
        // In two halves, which compile to plain stores. All at once would be a string instruction,
        // which is slow to start.
        constexpr std::size_t HALF = ZHUYIN_MIN / 2;
        std::memset(zhuyin, 0, HALF);
        std::memset(zhuyin + HALF, 0, HALF);
        if (is_long) std::memset(zhuyin + ZHUYIN_MIN, 0, zhuyin_size - ZHUYIN_MIN);
        UtteranceSyllable& record = *record_++;
        record.syllable = syllable;
        record.syl_len = static_cast<short>(size);
        record.zhuyin = zhuyin;
        record.zy_len = static_cast<short>(zhuyin_size);
        record.pause_type = record.pausetype_ta = record.pause_type_tn = PAUSE_WORD_FE;
        if (spans_.is_open()) record.cssml_tag = spans_.markup();
        return true;
    }

  private:
    bool take_tag(const TextEvent& event);

    char* request(std::size_t size) {
        return static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena_));
    }

    mem_stack_handle arena_;
    UtteranceSyllable* record_;
    SpanChain spans_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_WORD_FILLER_H
