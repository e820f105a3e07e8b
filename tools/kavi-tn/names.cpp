#include "names.h"

namespace kavi::tool {

const char* enumerator(PAUSE_type pause) {
    switch (pause) {
        case PAUSE_SYLLABLE_FE: return "PAUSE_SYLLABLE_FE";
        case PAUSE_WORD_FE: return "PAUSE_WORD_FE";
        case PAUSE_PHRASE_FE: return "PAUSE_PHRASE_FE";
        case PAUSE_INTONATION_PHRASE_FE: return "PAUSE_INTONATION_PHRASE_FE";
        case PAUSE_SENTENCE_FE: return "PAUSE_SENTENCE_FE";
        case PAUSE_SYLLABLE_FORCE_FE: return "PAUSE_SYLLABLE_FORCE_FE";
        case PAUSE_WORD_FORCE_FE: return "PAUSE_WORD_FORCE_FE";
        case PAUSE_PHRASE_FORCE_FE: return "PAUSE_PHRASE_FORCE_FE";
        case PAUSE_INTONATION_PHRASE_FORCE_FE: return "PAUSE_INTONATION_PHRASE_FORCE_FE";
        case PAUSE_PHONE_FE: return "PAUSE_PHONE_FE";
        case PAUSE_SYL_FE: return "PAUSE_SYL_FE";
        case PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE:
            return "PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE";
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

std::string punctuation_list(const UtteranceSyllable& record) {
    std::string list;
    for (int i = 0; i < record.n_punc; ++i) {
        if (i > 0) list += ' ';
        list += punctuation_name(record.punc_arr[i]);
    }
    return list;
}

std::string attribute_list(const CssmlTag& tag) {
    std::string list;
    for (const auto& [name, value] : attributes(tag)) {
        if (*value == '\0') continue;
        if (!list.empty()) list += ' ';
        list.append(name).append("=").append(value);
    }
    return list;
}

}  // namespace kavi::tool
