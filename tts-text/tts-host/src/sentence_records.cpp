#include "sentence_records.h"

#include <cstring>

namespace kavi::host {

namespace {

// What the words of a text need, and in how many lists they come.
struct Needs {
    std::size_t n_words = 0;
    std::size_t syllables = 0;  // bytes
    std::size_t zhuyins = 0;
    int n_lists = 0;
};

bool add_needs(void* context, const tn::TextEvents& events) {
    auto& needs = *static_cast<Needs*>(context);
    for (const tn::TextEvent& event : events) {
        if (event.kind != tn::TextEventKind::word) continue;
        ++needs.n_words;
        needs.syllables += tn::syllable_size(event.text());
        needs.zhuyins += tn::zhuyin_size(event.text());
    }
    ++needs.n_lists;
    return true;
}

// Stores words in records that stand one after the other, as their storage does.
struct BlockFiller {
    tn::RecordFiller records;
    char* zhuyin;
    char* syllable;
};

bool store_words(void* context, const tn::TextEvents& events) {
    auto& filler = *static_cast<BlockFiller*>(context);
    for (const tn::TextEvent& event : events) {
        if (event.kind != tn::TextEventKind::word) {
            if (!filler.records.take_tag(event)) return false;
            continue;
        }
        const std::string_view word = event.text();
        filler.records.store(word, filler.syllable, filler.zhuyin);
        filler.syllable += tn::syllable_size(word);
        filler.zhuyin += tn::zhuyin_size(word);
    }
    return true;
}

}  // namespace

// The block is the records, the room for pronunciations, which is cleared with them, and the words.
bool SentenceRecords::build(std::string_view speakable, tn::TextEvents& events) {
    Needs needs;
    tn::read_text(speakable, arena_, events, add_needs, &needs);
    const std::size_t n_records = needs.n_words + 1;
    const std::size_t array_size = n_records * sizeof(UtteranceSyllable);
    const std::size_t cleared = array_size + needs.zhuyins;
    if (!reserve(cleared + needs.syllables)) return false;
    std::memset(block_, 0, cleared);
    size_ = static_cast<int>(n_records);
    char* const begin = static_cast<char*>(block_);
    BlockFiller filler = {tn::RecordFiller(static_cast<UtteranceSyllable*>(block_) + 1),
                          begin + array_size, begin + cleared};
    return needs.n_lists == 1 ? store_words(&filler, events)
                              : tn::read_text(speakable, arena_, events, store_words, &filler);
}

// The block before is given back first, so that an arena has to hold one only.
bool SentenceRecords::reserve(std::size_t size) {
    if (size <= capacity_) return true;
    release();
    block_ = mem_stack_request_buf(size, MEM_COMMON, arena_);
    if (block_ == nullptr) return false;
    capacity_ = size;
    return true;
}

void SentenceRecords::release() {
    mem_stack_release_buf(block_, 0, MEM_COMMON, arena_);
    block_ = nullptr;
    capacity_ = 0;
    size_ = 0;
}

}  // namespace kavi::host
