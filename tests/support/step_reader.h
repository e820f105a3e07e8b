// Reads tagged text by single steps, which share nothing: what the builder must agree with.
#ifndef KAVI_TESTS_STEP_READER_H
#define KAVI_TESTS_STEP_READER_H

#include <string>
#include <vector>

#include "post_pro_tn_eng.h"

namespace kavi {

// All words of a text, those of its spans included.
inline std::vector<std::string> words_by_steps(PostProTnEng& engine, std::string text) {
    std::vector<std::string> words;
    std::string word(WORD_MAX_LEN, '\0');
    std::string name(MEMORY_SIZE_TAG_LABEL_TN, '\0');
    std::string value(text.size() + 1, '\0');
    std::string content = value;
    int mark = 0;
    for (int i = 0, j = 0; i < static_cast<int>(text.size());) {
        name[0] = '\0';
        engine.filter_text(text.data(), word.data(), name.data(), value.data(), content.data(), i,
                           j, mark);
        const std::string tag = name.c_str();
        if (mark == 1) {
            words.emplace_back(word.c_str());
            word[0] = '\0';
            j = 0;
        } else if (tag == "prosody" || tag == "emphasis" || tag == "poem" ||
                   tag == "quill_effect") {
            for (std::string& inner : words_by_steps(engine, content.c_str())) {
                words.push_back(std::move(inner));
            }
        }
    }
    return words;
}

// The words of the records that the builder made.
inline std::vector<std::string> words_of_records(const UtteranceSyllable* utt, int n_utt) {
    std::vector<std::string> words;
    for (int i = 1; i < n_utt; ++i) words.emplace_back(utt[i].syllable);
    return words;
}

}  // namespace kavi

#endif  // KAVI_TESTS_STEP_READER_H
