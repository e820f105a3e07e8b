// Filling records.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include <cstring>
#include <string_view>

#include "../common/short_copy.h"
#include "MemoryStack.h"
#include "span_chain.h"
#include "text_events.h"

namespace kavi::tn {

// Sets the break time of a record to the first 19 characters of `value`.
void set_breaktime(UtteranceSyllable& record, std::string_view value);

// The bytes that a word takes: its characters with a NUL, and room for its pronunciation.
inline std::size_t syllable_size(std::string_view word) {
    return word.size() + 1;
}
constexpr std::size_t ZHUYIN_MIN = 128;
inline std::size_t zhuyin_size(std::string_view word) {
    constexpr std::size_t PER_CHARACTER = 10;
    const bool is_long = word.size() > ZHUYIN_MIN / PER_CHARACTER;
    return is_long ? PER_CHARACTER * word.size() : ZHUYIN_MIN;
}

// Fills one record after the other with words, their marks, and the attributes of the spans that
// enclose them.
class RecordFiller {
  public:
    // `record` is the first to fill. At least one precedes it. It and those after it have no
    // attributes yet.
    explicit RecordFiller(UtteranceSyllable* record) : record_(record) {}
    RecordFiller(const RecordFiller&) = delete;
    RecordFiller& operator=(const RecordFiller&) = delete;

    // The record of the next word.
    UtteranceSyllable* record() const { return record_; }

    // Stores an item that is no word. False when the span chain has no room: no more items may be
    // stored.
    bool take_tag(const TextEvent& event);

    // Opens a span, or several as lists, around the words that follow. False when the span chain
    // has no room.
    bool enter_span(std::string_view name, std::string_view value) {
        return spans_.enter(name, value);
    }

    // Stores a word at the default pause. `syllable` and `zhuyin` have the sizes above; `zhuyin` is
    // all zero.
    void store(std::string_view word, char* syllable, char* zhuyin) {
        copy_short(syllable, word.data(), word.size());
        syllable[word.size()] = '\0';
        UtteranceSyllable& record = *record_++;
        record.syllable = syllable;
        record.syl_len = static_cast<short>(syllable_size(word));
        record.zhuyin = zhuyin;
        record.zy_len = static_cast<short>(zhuyin_size(word));
        record.pause_type = record.pausetype_ta = record.pause_type_tn = PAUSE_WORD_FE;
        if (spans_.is_open()) record.cssml_tag = spans_.markup();
    }

  private:
    UtteranceSyllable* record_;
    SpanChain spans_;
};

// Fills records with words whose storage is two blocks of the arena each.
class WordFiller {
  public:
    WordFiller(mem_stack_handle arena, UtteranceSyllable* record)
        : arena_(arena), records_(record) {}

    UtteranceSyllable* record() const { return records_.record(); }

    // Stores an item. False when the arena refused the storage of a word, or the span chain has no
    // room: no more items may be stored.
    bool take(const TextEvent& event) {
        if (event.kind == TextEventKind::word) return store(event.text());
        return records_.take_tag(event);
    }

    bool enter_span(std::string_view name, std::string_view value) {
        return records_.enter_span(name, value);
    }

    // Stores a word at the default pause. False when the arena refused its storage: no block is
    // kept.
    bool store(std::string_view word) {
        const std::size_t room = zhuyin_size(word);
        char* syllable = request(syllable_size(word));
        char* zhuyin = syllable != nullptr ? request(room) : nullptr;
        if (zhuyin == nullptr) {
            mem_stack_release_buf(syllable, syllable_size(word), MEM_COMMON, arena_);
            record()->syllable = nullptr;
            return false;
        }
        // In two halves, which compile to plain stores. All at once would be a string instruction,
        // which is slow to start.
        constexpr std::size_t HALF = ZHUYIN_MIN / 2;
        std::memset(zhuyin, 0, HALF);
        std::memset(zhuyin + HALF, 0, HALF);
        if (room > ZHUYIN_MIN) std::memset(zhuyin + ZHUYIN_MIN, 0, room - ZHUYIN_MIN);
        records_.store(word, syllable, zhuyin);
        return true;
    }

  private:
    char* request(std::size_t size) {
        return static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena_));
    }

    mem_stack_handle arena_;
    RecordFiller records_;
};

}  // namespace kavi::tn

#endif  // KAVI_TN_WORD_FILLER_H
