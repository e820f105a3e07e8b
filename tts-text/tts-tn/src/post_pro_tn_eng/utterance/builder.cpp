// The builder: a text is read twice, once to count its words and once to store them, so that the
// array is had once and at its size.

#include <cassert>
#include <cstring>

#include "../common/clear.h"
#include "post_pro_tn_eng.h"
#include "text_reader.h"
#include "word_counter.h"
#include "word_filler.h"

namespace kavi {

bool PostProTnEng::count_embed_word(int& n, char* buffer_target) {
    tn::WordCounter counter;
    tn::read_text(buffer_target, _mem_handle, counter);
    n += counter.n();
    return true;
}

bool PostProTnEng::insert_ssml_info(int& n, UtteranceSyllable* utt, const char* value_str,
                                    char* buffer_target, const char* tag_type) {
    tn::SpanChain chain;
    if (!chain.assign(tag_type, value_str)) return false;
    tn::WordFiller filler(_mem_handle, utt + n, &chain);
    const bool stored = tn::read_text(buffer_target, _mem_handle, filler);
    n = static_cast<int>(filler.record() - utt);
    return stored;
}

int PostProTnEng::eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt,
                                                 int& n_utt) {
    p_utt = nullptr;
    n_utt = 0;
    const std::string_view text = sz_source_text;

    tn::WordCounter counter;
    tn::read_text(text, _mem_handle, counter);
    const int word_num = counter.n() + 1;  // with the head record

    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, _mem_handle));
    if (array == nullptr) return -1;
    for (int i = 0; i < word_num; ++i) tn::clear(array + i, sizeof(UtteranceSyllable));
    p_utt = array;
    n_utt = word_num;

    tn::WordFiller filler(_mem_handle, array + 1, nullptr);
    if (!tn::read_text(text, _mem_handle, filler)) return -1;
    const auto curr_n_utt = filler.record() - array;
    assert(word_num == curr_n_utt);
    static_cast<void>(curr_n_utt);
    return 0;
}

}  // namespace kavi
