// Speakable text to records.
#ifndef KAVI_TN_BUILDER_H
#define KAVI_TN_BUILDER_H

#include <string_view>

#include "post_pro_tn_eng.h"

namespace kavi::tn {

// Looks on while words are stored.
class WordObserver {
  public:
    // A word that begins there in the text has its record.
    virtual void on_word(const char* begin) = 0;

  protected:
    ~WordObserver() = default;
};

// What PostProTnEng::eng_text_to_utterance_syllable does; `observer` may be null. A NUL follows
// the text.
int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, WordObserver* observer);

}  // namespace kavi::tn

#endif  // KAVI_TN_BUILDER_H
