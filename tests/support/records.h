// Records of an utterance as text: what a test expects, and what it prints when it fails.
#ifndef KAVI_TESTS_RECORDS_H
#define KAVI_TESTS_RECORDS_H

#include <string>

#include "MemoryStack.h"
#include "ShareObj.h"
#include "tts_names.h"

namespace kavi {

// "word+dou+ju!" is a word with two marks and a forced pause, then "(emphasis=strong rate=2)" what
// markup gives it. The head record has no word.
inline std::string to_text(const UtteranceSyllable& record) {
    std::string text = record.syllable != nullptr ? record.syllable : "";
    for (int i = 0; i < record.n_punc; ++i) {
        text.append("+") += punctuation_name(record.punc_arr[i]);
    }
    if (record.pause_type == PAUSE_INTONATION_PHRASE_FORCE_FE) text += "!";
    if (record.pause_type != record.pause_type_tn) text += "?";
    const CssmlTag& tag = record.cssml_tag;
    const std::pair<const char*, const char*> fields[] = {
        {"breaktime", tag.breaktime}, {"emphasis", tag.emphasis},  {"pitch", tag.pro_pitch},
        {"rate", tag.pro_rate},       {"volume", tag.pro_volume},  {"spectrum", tag.pro_spectrum},
        {"poem", tag.poem},           {"effect", tag.quill_effect}};
    std::string set;
    for (const auto& [name, value] : fields) {
        if (*value != '\0') set += (set.empty() ? "" : " ") + std::string(name) + "=" + value;
    }
    return set.empty() ? text : text + "(" + set + ")";
}

// All records, the head first: "|" between them.
inline std::string to_text(const UtteranceSyllable* utt, int n_utt) {
    std::string text;
    for (int i = 0; i < n_utt; ++i) text += (i == 0 ? "" : "|") + to_text(utt[i]);
    return text;
}

inline void release_words(UtteranceSyllable* utt, int begin, int end, mem_stack_handle arena) {
    for (int i = begin; i < end; ++i) {
        mem_stack_release_buf(utt[i].syllable, static_cast<std::size_t>(utt[i].syl_len), MEM_COMMON,
                              arena);
        mem_stack_release_buf(utt[i].zhuyin, static_cast<std::size_t>(utt[i].zy_len), MEM_COMMON,
                              arena);
    }
}

// What a host does with an utterance that it has read.
inline void release(UtteranceSyllable* utt, int n_utt, mem_stack_handle arena) {
    release_words(utt, 0, n_utt, arena);
    mem_stack_release_buf(utt, static_cast<std::size_t>(n_utt) * sizeof(UtteranceSyllable),
                          MEM_COMMON, arena);
}

}  // namespace kavi

#endif  // KAVI_TESTS_RECORDS_H
