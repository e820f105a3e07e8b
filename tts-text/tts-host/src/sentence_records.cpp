#include "sentence_records.h"

#include <algorithm>
#include <cstring>

namespace kavi::host {

namespace {

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

// The block is the records, the room for pronunciations, which is cleared with them, and the words:
// as much as the words of such a text may need at most, so that they are looked at once. One list
// has room for all items of a sentence: no tag interrupts a word there, so no word is put together.
bool SentenceRecords::build(std::string_view speakable, tn::TextEvents& events) {
    tn::read_text(
        speakable, arena_, events, [](void*, const tn::TextEvents&) { return true; }, nullptr);
    const auto n_words = static_cast<std::size_t>(events.n_words());
    const std::size_t array_size = (n_words + 1) * sizeof(UtteranceSyllable);
    const std::size_t cleared = array_size + n_words * tn::ZHUYIN_MIN + tn::zhuyin_size(speakable);
    if (!reserve(cleared + n_words + speakable.size())) return false;
    std::memset(block_, 0, cleared);
    size_ = static_cast<int>(n_words) + 1;
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
