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
