// A text is read once to count its words and, when one list does not hold all that stands in it, a
// second time to store them; so the array is had once and at its size.

#include "builder.h"

#include <cassert>
#include <optional>

#include "../common/clear.h"
#include "word_filler.h"

namespace kavi {

namespace tn {

namespace {

// How many words are in `events` and in all that comes after them; the last list is left.
int count_words(TextReader& reader, TextEvents& events) {
    int n = events.n_words();
    while (!reader.at_end()) {
        reader.read(events);
        n += events.n_words();
    }
    return n;
}

// Stores the words of `events` and of all that comes after them. False when the filler did not take
// something.
bool store_words(TextReader& reader, TextEvents& events, WordFiller& filler) {
    for (;;) {
        for (const TextEvent& event : events) {
            if (!filler.take(event)) return false;
        }
        if (reader.at_end()) return true;
        reader.read(events);
    }
}

}  // namespace

int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, TextEvents& events) {
    p_utt = nullptr;
    n_utt = 0;
    std::optional<TextReader> reader(std::in_place, text, arena);
    reader->read(events);
    const bool is_whole = reader->at_end();
    const int word_num = count_words(*reader, events) + 1;  // with the head record
    if (!is_whole) {
        reader.emplace(text, arena);
        reader->read(events);
    }

    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, arena));
    if (array == nullptr) return -1;
    for (int i = 0; i < word_num; ++i) clear<sizeof(UtteranceSyllable)>(array + i);
    p_utt = array;
    n_utt = word_num;

    WordFiller filler(arena, array + 1);
    if (!store_words(*reader, events, filler)) return -1;
    assert(filler.record() == array + word_num);
    return 0;
}

}  // namespace tn

bool PostProTnEng::count_embed_word(int& n, char* buffer_target) {
    tn::TextReader reader(buffer_target, _mem_handle);
    tn::TextEvents events;
    n += tn::count_words(reader, events);
    return true;
}

bool PostProTnEng::insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                                    char* buffer_target, const char* tag_type) {
    tn::WordFiller filler(_mem_handle, utt + n);
    if (!filler.enter_span(tag_type, value_str)) return false;
    tn::TextReader reader(buffer_target, _mem_handle);
    tn::TextEvents events;
    reader.read(events);
    const bool stored = tn::store_words(reader, events, filler);
    n = static_cast<int>(filler.record() - utt);
    return stored;
}

int PostProTnEng::eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt,
                                                 int& n_utt) {
    tn::TextEvents events;
    return tn::build_utterance(sz_source_text, _mem_handle, p_utt, n_utt, events);
}

}  // namespace kavi
