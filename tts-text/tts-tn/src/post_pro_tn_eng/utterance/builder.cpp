// The items of a text are listed, the words counted, and then stored from the list, so that the
// array is requested once, at its size. A text with more items than a list holds is read a second
// time.

#include "builder.h"

#include <cassert>
#include <cstring>

#include "word_filler.h"

namespace kavi {

namespace tn {

namespace {

struct WordCount {
    int n_words = 0;
    int n_lists = 0;
};

// Counts the words of the text and the lists that hold its items. `events` keeps the last list.
WordCount count_words(std::string_view text, mem_stack_handle arena, TextEvents& events) {
    WordCount count;
    const auto add = [](void* context, const TextEvents& list) {
        auto& sum = *static_cast<WordCount*>(context);
        sum.n_words += list.n_words();
        ++sum.n_lists;
        return true;
    };
    read_text(text, arena, events, add, &count);
    return count;
}

// Stores the items of a list. False when the filler refused one.
bool store_words(void* filler, const TextEvents& events) {
    for (const TextEvent& event : events) {
        if (!static_cast<WordFiller*>(filler)->take(event)) return false;
    }
    return true;
}

}  // namespace

int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, TextEvents& events) {
    p_utt = nullptr;
    n_utt = 0;
    const WordCount count = count_words(text, arena, events);
    const int word_num = count.n_words + 1;  // with the head record
    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, arena));
    if (array == nullptr) return -1;
    // At once: for several kilobytes the C library is faster than clearing each record.
    std::memset(static_cast<void*>(array), 0, array_size);
    p_utt = array;
    n_utt = word_num;

    WordFiller filler(arena, array + 1);
    const bool stored = count.n_lists == 1 ? store_words(&filler, events)
                                           : read_text(text, arena, events, store_words, &filler);
    if (!stored) return -1;
    [[maybe_unused]] const auto curr_n_utt = filler.record() - array;
    assert(word_num == curr_n_utt);
    return 0;
}

}  // namespace tn

bool PostProTnEng::count_embed_word(int& n, char* buffer_target) {
    tn::TextEvents events;
    n += tn::count_words(buffer_target, _mem_handle, events).n_words;
    return true;
}

bool PostProTnEng::insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                                    char* buffer_target, const char* tag_type) {
    tn::WordFiller filler(_mem_handle, utt + n);
    if (!filler.enter_span(tag_type, value_str)) return false;
    tn::TextEvents events;
    const bool stored = tn::read_text(buffer_target, _mem_handle, events, tn::store_words, &filler);
    n = static_cast<int>(filler.record() - utt);
    return stored;
}

int PostProTnEng::eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt,
                                                 int& n_utt) {
    tn::TextEvents events;
    return tn::build_utterance(sz_source_text, _mem_handle, p_utt, n_utt, events);
}

}  // namespace kavi
