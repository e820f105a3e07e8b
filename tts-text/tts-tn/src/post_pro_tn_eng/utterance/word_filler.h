// The filling pass over a text.
#ifndef KAVI_TN_WORD_FILLER_H
#define KAVI_TN_WORD_FILLER_H

#include <optional>
#include <string_view>

#include "../common/clear.h"
#include "../common/short_copy.h"
#include "post_pro_tn_eng.h"

namespace kavi {

// Stores the words that it is shown, with their marks and the attributes of the spans that enclose
// them, in one record after the other. False: stop.
class WordFiller {
  public:
    // `record` is the next to fill, after one at least; outside every span, the records are zero.
    WordFiller(PostProTnEng& engine, UtteranceSyllable* record)
        : engine_(engine), arena_(engine._mem_handle), record_(record) {}

    // Goes into the innermost of a chain of spans. The texts stay the caller's.
    void enter(const char* names, const char* values);

    // Where the next word goes.
    UtteranceSyllable* record() const { return record_; }

    // Adds the mark of this name to a record. Those after the tenth are dropped; an unknown name
    // counts, as no mark.
    static void add_punc(UtteranceSyllable& record, std::string_view name);

    // At the default pause. False when the arena refused the word's storage: nothing is kept.
    bool word(std::string_view word) {
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
        if (!word.empty()) tn::copy_short(syllable, word.data(), word.size());
        syllable[word.size()] = '\0';
        tn::clear(zhuyin, ZHUYIN_MIN);
        if (is_long) tn::clear(zhuyin + ZHUYIN_MIN, zhuyin_size - ZHUYIN_MIN);
        UtteranceSyllable& record = *record_++;
        record.syllable = syllable;
        record.syl_len = static_cast<short>(size);
        record.zhuyin = zhuyin;
        record.zy_len = static_cast<short>(zhuyin_size);
        record.pause_type = record.pausetype_ta = record.pause_type_tn = PAUSE_WORD_FE;
        if (markup_) record.cssml_tag = *markup_;
        return true;
    }

    bool punc(std::string_view name) {
        add_punc(record_[-1], name);
        return true;
    }
    bool breaktime(std::string_view value);
    bool span(std::string_view name, std::string_view value, char* content);

  private:
    char* request(std::size_t size) {
        return static_cast<char*>(mem_stack_request_buf(size, MEM_COMMON, arena_));
    }

    PostProTnEng& engine_;
    mem_stack_handle arena_;
    UtteranceSyllable* record_;
    std::string_view names_ = "";  // of the enclosing spans, outermost first, by tabs
    std::string_view values_ = "";
    std::optional<CssmlTag> markup_;  // what they give each word
};

}  // namespace kavi

#endif  // KAVI_TN_WORD_FILLER_H
