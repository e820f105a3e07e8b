// The filling pass over a text.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include <optional>
#include <string_view>

#include "../common/clear.h"
#include "../common/short_copy.h"
#include "MemoryStack.h"
#include "span_chain.h"

namespace kavi::tn {

// Adds the mark of this name to a record. Those after the tenth are dropped; an unknown name
// counts, as no mark.
void add_punc(UtteranceSyllable& record, std::string_view name);

// The first 19 characters of the value, in the place of what was there.
void set_breaktime(UtteranceSyllable& record, std::string_view value);

// Stores the words that it is shown, with their marks and the attributes of the spans that enclose
// them, in one record after the other. False: stop.
class WordFiller {
  public:
    // `record` is the next to fill, after one at least; its markup is clear. `chain` may be null.
    WordFiller(mem_stack_handle arena, UtteranceSyllable* record, const SpanChain* chain)
        : arena_(arena), record_(record), chain_(chain) {}

    // A copy inside a span.
    WordFiller(const WordFiller& outside)
        : arena_(outside.arena_), record_(outside.record_), chain_(outside.chain_) {}
    WordFiller& operator=(const WordFiller&) = delete;

    // Where the next word goes.
    UtteranceSyllable* record() const { return record_; }

    bool word(std::string_view word, const char* /*begin*/) { return store(word); }

    // At the default pause. False when the arena refused the word's storage: nothing is kept.
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
        clear<ZHUYIN_MIN>(zhuyin);
        if (is_long) std::memset(zhuyin + ZHUYIN_MIN, 0, zhuyin_size - ZHUYIN_MIN);
        UtteranceSyllable& record = *record_++;
        record.syllable = syllable;
        record.syl_len = static_cast<short>(size);
        record.zhuyin = zhuyin;
        record.zy_len = static_cast<short>(zhuyin_size);
        record.pause_type = record.pausetype_ta = record.pause_type_tn = PAUSE_WORD_FE;
        if (chain_ != nullptr) record.cssml_tag = chain_->markup();
        return true;
    }
    void punc(std::string_view name) { add_punc(record_[-1], name); }
    void breaktime(std::string_view value) { set_breaktime(record_[-1], value); }

    // False when the chain has no room for the span.
    bool enter(std::string_view name, std::string_view value) {
        const SpanChain* outer = chain_;
        chain_ = &own_.emplace();
        return own_->extend(outer, name, value);
    }
    static bool is_too_deep() { return false; }  // the chain bounds the depth
    void leave(const WordFiller& inside) { record_ = inside.record_; }

  private:
    char* request(std::size_t size) {
        return static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena_));
    }

    mem_stack_handle arena_;
    UtteranceSyllable* record_;
    const SpanChain* chain_;        // of the spans that enclose what is read; null for none
    std::optional<SpanChain> own_;  // with the span that this pass has entered
};

}  // namespace kavi::tn

#endif  // KAVI_TN_WORD_FILLER_H
