#include "builder.h"

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
    return tn::build_utterance<tn::WordFiller>(sz_source_text, _mem_handle, p_utt, n_utt);
}

}  // namespace kavi
