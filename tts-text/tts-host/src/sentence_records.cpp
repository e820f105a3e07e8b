#include "sentence_records.h"

#include <algorithm>
#include <cassert>
#include <cstring>

namespace kavi::host {

namespace {

// What the words of a text need, in bytes, and how many lists they come in.
struct Needs {
    std::size_t syllables = 0;
    std::size_t zhuyins = 0;
    int n_lists = 0;
};

bool add_needs(void* context, const tn::TextEvents& events) {
    auto& needs = *static_cast<Needs*>(context);
    for (const tn::TextEvent& event : events) {
        if (event.kind != tn::TextEventKind::word) continue;
        needs.syllables += tn::syllable_size(event.text());
        needs.zhuyins += tn::zhuyin_size(event.text());
    }
    ++needs.n_lists;
    return true;
}

// Stores words in consecutive records, with consecutive storage.
struct BlockFiller {
    tn::RecordFiller records;
    char* zhuyin;
    char* syllable;

    // False when the chain of spans has no room: no more items may be stored.
    bool take(const tn::TextEvent& event) {
        if (event.kind != tn::TextEventKind::word) return records.take_tag(event);
        const std::string_view word = event.text();
        records.store(word, syllable, zhuyin);
        syllable += tn::syllable_size(word);
        zhuyin += tn::zhuyin_size(word);
        return true;
    }
};

}  // namespace

// The block is the records, the room for pronunciations, which is cleared with them, and the words.
// One list has room for all items of a sentence: no tag interrupts a word there, so no word is put
// together.
bool SentenceRecords::build(std::string_view speakable, tn::TextEvents& events) {
    Needs needs;
    tn::read_text(speakable, arena_, events, add_needs, &needs);
    assert(needs.n_lists == 1);
    const auto n_records = static_cast<std::size_t>(events.n_words()) + 1;
    const std::size_t array_size = n_records * sizeof(UtteranceSyllable);
    const std::size_t cleared = array_size + needs.zhuyins;
    if (!reserve(cleared + needs.syllables)) return false;
    std::memset(block_, 0, cleared);
    size_ = static_cast<int>(n_records);
    char* const begin = static_cast<char*>(block_);
    BlockFiller filler = {tn::RecordFiller(static_cast<UtteranceSyllable*>(block_) + 1),
                          begin + array_size, begin + cleared};
    return std::all_of(events.begin(), events.end(),
                       [&](const tn::TextEvent& event) { return filler.take(event); });
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
