#include "tts_names.h"

namespace kavi {

const char* pause_name(PAUSE_type pause) {
    switch (pause) {
        case PAUSE_SYLLABLE_FE: return "syllable";
        case PAUSE_WORD_FE: return "word";
        case PAUSE_PHRASE_FE: return "phrase";
        case PAUSE_INTONATION_PHRASE_FE: return "intonation phrase";
        case PAUSE_SENTENCE_FE: return "sentence";
        case PAUSE_SYLLABLE_FORCE_FE: return "syllable, forced";
        case PAUSE_WORD_FORCE_FE: return "word, forced";
        case PAUSE_PHRASE_FORCE_FE: return "phrase, forced";
        case PAUSE_INTONATION_PHRASE_FORCE_FE: return "intonation phrase, forced";
        case PAUSE_PHONE_FE: return "phone";
        case PAUSE_SYL_FE: return "syl";
        case PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE: return "plrule intonation phrase, forced";
    }
    return "";
}

const char* punctuation_name(PUNC_type punc) {
    switch (punc) {
        case PUNC_DUN_FE: return "dun";
        case PUNC_DOU_FE: return "dou";
        case PUNC_FEN_FE: return "fen";
        case PUNC_JU_FE: return "ju";
        case PUNC_WEN_FE: return "wen";
        case PUNC_TAN_FE: return "tan";
        case PUNC_MAO_FE: return "mao";
        case PUNC_ZUOSHU_FE: return "zuoshu";
        case PUNC_YOUSHU_FE: return "youshu";
        case PUNC_ZUOYIN_FE: return "zuoyin";
        case PUNC_YOUYIN_FE: return "youyin";
        case PUNC_ZUOKUO_FE: return "zuokuo";
        case PUNC_YOUKUO_FE: return "youkuo";
        case PUNC_SHENGLUE_FE: return "shenglue";
        case PUNC_POZHE_FE: return "pozhe";
        case TN_BEGIN_FE: return "tnbegin";
        case TN_END_FE: return "tnend";
        case POIB_FE: return "POIB";
        case POIE_FE: return "POIE";
        case PUNC_NULL_FE: break;
    }
    return "unknown";
}

std::array<std::pair<const char*, const char*>, 7> attributes(const CssmlTag& tag) {
    return {{{"emphasis", tag.emphasis},
             {"pitch", tag.pro_pitch},
             {"rate", tag.pro_rate},
             {"volume", tag.pro_volume},
             {"spectrum", tag.pro_spectrum},
             {"poem", tag.poem},
             {"quill_effect", tag.quill_effect}}};
}

}  // namespace kavi
