// Speakable text to records.
#ifndef KAVI_TN_BUILDER_H
#define KAVI_TN_BUILDER_H

#include <string_view>

#include "post_pro_tn_eng.h"
#include "text_reader.h"

namespace kavi::tn {

// What PostProTnEng::eng_text_to_utterance_syllable does. A NUL follows the text. `events` is room
// for lists of its items; the last one is left, with all of it when that has room.
int build_utterance(std::string_view text, mem_stack_handle arena, UtteranceSyllable*& p_utt,
                    int& n_utt, TextEvents& events);

}  // namespace kavi::tn

#endif  // KAVI_TN_BUILDER_H
