// What hosts call, for scripts/limits: the sizes of what a program then has of the engine.

#include "post_pro_tn_eng.h"

using kavi::PostProTnEng;

extern "C" {

// Text in, records out.
struct TextCalls {
    decltype(&PostProTnEng::init) init;
    decltype(&PostProTnEng::eng_text_normalize) normalize;
    decltype(&PostProTnEng::eng_text_tokenize) tokenize;
    decltype(&PostProTnEng::eng_text_to_utterance_syllable) build;
};
extern const TextCalls text_calls = {
    &PostProTnEng::init,
    &PostProTnEng::eng_text_normalize,
    &PostProTnEng::eng_text_tokenize,
    &PostProTnEng::eng_text_to_utterance_syllable,
};

// All other public operations.
struct OtherCalls {
    decltype(&PostProTnEng::abbreviation) abbreviation;
    decltype(&PostProTnEng::text_to_queue) to_queue;
    decltype(&PostProTnEng::add_section) add_section;
    decltype(&PostProTnEng::section_process) process;
    decltype(&PostProTnEng::insert_syllable) syllable;
    decltype(&PostProTnEng::insert_breaktime) breaktime;
    decltype(&PostProTnEng::insert_emphasis_in) insert_in[4];
    decltype(&PostProTnEng::insert_ssml_info_in) chain_in;
    decltype(&PostProTnEng::insert_ssml_info) chain;
    decltype(&PostProTnEng::filter_text) filter;
    decltype(&PostProTnEng::count_embed_word) count;
};
extern const OtherCalls other_calls = {
    &PostProTnEng::abbreviation,
    &PostProTnEng::text_to_queue,
    &PostProTnEng::add_section,
    &PostProTnEng::section_process,
    &PostProTnEng::insert_syllable,
    &PostProTnEng::insert_breaktime,
    {&PostProTnEng::insert_emphasis_in, &PostProTnEng::insert_poem_in,
     &PostProTnEng::insert_quill_effect_in, &PostProTnEng::insert_prosody_in},
    &PostProTnEng::insert_ssml_info_in,
    &PostProTnEng::insert_ssml_info,
    &PostProTnEng::filter_text,
    &PostProTnEng::count_embed_word,
};

}  // extern "C"
