// The builder: speakable text to records.
#ifndef KAVI_TN_BUILDER_H
#define KAVI_TN_BUILDER_H

#include <string_view>

#include "post_pro_tn_eng.h"
#include "text_events.h"

namespace kavi::tn {

// PostProTnEng::eng_text_to_utterance_syllable for a text that a NUL follows. `events` is used for
// the lists of its items and keeps the last one, which has all items if they fit.
int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, TextEvents& events);

}  // namespace kavi::tn

#endif  // KAVI_TN_BUILDER_H
