// The builder: a text is read twice, once to count its words and once to store them, so that the
// array is had once and at its size.

#include <algorithm>
#include <cassert>
#include <cstring>

#include "text_reader.h"
#include "word_counter.h"
#include "word_filler.h"

namespace kavi {

bool PostProTnEng::count_embed_word(int& n, char* buffer_target) {
    return count_words(n, buffer_target, 1);
}

bool PostProTnEng::count_words(int& n, char* buffer_target, int n_depth) {
    tn::SpanBuffers buffers(_mem_handle, buffer_target);
    WordCounter counter(*this, n, n_depth);
    return buffers && tn::read_text(buffer_target, buffers.word(), buffers.content(), counter);
}

int PostProTnEng::eng_text_to_utterance_syllable(char* sz_source_text, UtteranceSyllable*& p_utt,
                                                 int& n_utt) {
    p_utt = nullptr;
    n_utt = 0;
    const std::size_t length = std::strlen(sz_source_text);
    char temp[WORD_MAX_LEN];
    tn::Scratch sz_target(_mem_handle, length);
    const bool has_text = length > 0;
    if (has_text && !sz_target) return -1;

    int word_num = 0;
    WordCounter counter(*this, word_num, 0);
    if (has_text && !tn::read_text(sz_source_text, temp, sz_target.text(), counter)) return -1;
    ++word_num;  // the head record

    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, _mem_handle));
    if (array == nullptr) return -1;
    std::fill_n(array, word_num, UtteranceSyllable{});
    p_utt = array;
    n_utt = word_num;

    int curr_n_utt = 1;
    WordFiller filler(*this, curr_n_utt, p_utt);
    if (has_text && !tn::read_text(sz_source_text, temp, sz_target.text(), filler)) return -1;
    assert(word_num == curr_n_utt);
    return 0;
}

}  // namespace kavi
