// The builder: a text is read twice, once to count its words and once to store them, so that the
// array is had once and at its size.

#include <cassert>

#include "../common/clear.h"
#include "text_reader.h"
#include "word_counter.h"
#include "word_filler.h"

namespace kavi {

bool PostProTnEng::count_embed_word(int& n, char* buffer_target) {
    return count_words(n, buffer_target, 1);
}

bool PostProTnEng::count_words(int& n, char* buffer_target, int n_depth) {
    WordCounter counter(*this, n, n_depth);
    return tn::read_span(buffer_target, _mem_handle, counter);
}

int PostProTnEng::eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt,
                                                 int& n_utt) {
    p_utt = nullptr;
    n_utt = 0;
    const std::string_view text = sz_source_text;
    char temp[WORD_MAX_LEN];

    int word_num = 0;
    WordCounter counter(*this, word_num, 0);
    if (!tn::read_text(text, temp, _mem_handle, counter)) return -1;
    ++word_num;  // the head record

    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, _mem_handle));
    if (array == nullptr) return -1;
    for (int i = 0; i < word_num; ++i) tn::clear(array + i, sizeof(UtteranceSyllable));
    p_utt = array;
    n_utt = word_num;

    WordFiller filler(*this, array + 1);
    if (!tn::read_text(text, temp, _mem_handle, filler)) return -1;
    const auto curr_n_utt = filler.record() - array;
    assert(word_num == curr_n_utt);
    static_cast<void>(curr_n_utt);
    return 0;
}

}  // namespace kavi
