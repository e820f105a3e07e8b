// The builder: a text is read twice, once to count its words and once to store them, so that the
// array is had once and at its size.
#ifndef KAVI_TN_BUILDER_H
#define KAVI_TN_BUILDER_H

#include <cassert>
#include <string_view>

#include "../common/clear.h"
#include "post_pro_tn_eng.h"
#include "text_reader.h"
#include "word_counter.h"
#include "word_filler.h"

namespace kavi::tn {

// What PostProTnEng::eng_text_to_utterance_syllable does, with a filler that is a WordFiller and
// made with `more` arguments.
template <typename Filler, typename... More>
int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, More&... more) {
    p_utt = nullptr;
    n_utt = 0;
    WordCounter counter;
    read_text(text, arena, counter);
    const int word_num = counter.n() + 1;  // with the head record

    const std::size_t array_size = static_cast<std::size_t>(word_num) * sizeof(UtteranceSyllable);
    auto* array =
        static_cast<UtteranceSyllable*>(mem_stack_request_buf(array_size, MEM_COMMON, arena));
    if (array == nullptr) return -1;
    for (int i = 0; i < word_num; ++i) clear<sizeof(UtteranceSyllable)>(array + i);
    p_utt = array;
    n_utt = word_num;

    Filler filler(arena, array + 1, nullptr, more...);
    if (!read_text(text, arena, filler)) return -1;
    const auto curr_n_utt = filler.record() - array;
    assert(word_num == curr_n_utt);
    static_cast<void>(curr_n_utt);
    return 0;
}

}  // namespace kavi::tn

#endif  // KAVI_TN_BUILDER_H
