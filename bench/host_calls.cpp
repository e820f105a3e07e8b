// What hosts call, for scripts/limits: the sizes of what a program then has of the engine.

#include <tuple>

#include "post_pro_tn_eng.h"

using kavi::PostProTnEng;

extern "C" {

// Text in, records out.
extern const std::tuple text_calls(&PostProTnEng::init, &PostProTnEng::eng_text_normalize,
                                   &PostProTnEng::eng_text_tokenize,
                                   &PostProTnEng::eng_text_to_utterance_syllable);

// All other public operations.
extern const std::tuple other_calls(
    &PostProTnEng::abbreviation, &PostProTnEng::text_to_queue, &PostProTnEng::add_section,
    &PostProTnEng::section_process, &PostProTnEng::insert_syllable, &PostProTnEng::insert_breaktime,
    &PostProTnEng::insert_emphasis_in, &PostProTnEng::insert_poem_in,
    &PostProTnEng::insert_quill_effect_in, &PostProTnEng::insert_prosody_in,
    &PostProTnEng::insert_ssml_info_in, &PostProTnEng::insert_ssml_info, &PostProTnEng::filter_text,
    &PostProTnEng::count_embed_word);

}  // extern "C"
