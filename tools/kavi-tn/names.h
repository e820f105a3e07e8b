// The names of what a record holds.
#ifndef KAVI_TOOL_NAMES_H
#define KAVI_TOOL_NAMES_H

#include <array>
#include <string>
#include <utility>

#include "ShareObj.h"

namespace kavi::tool {

const char* enumerator(PAUSE_type pause);

// As in "<punc=" tags; "unknown" for no mark.
inline const char* punctuation_name(PUNC_type punc) {
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

// Attribute names and values of a word, break time aside, in the record's order; empty values are
// attributes that are not set.
std::array<std::pair<const char*, const char*>, 7> attributes(const CssmlTag& tag);

// The punctuation names of a record, and its attributes that are set, separated by blanks.
std::string punctuation_list(const UtteranceSyllable& record);
std::string attribute_list(const CssmlTag& tag);

// Whether there is something to tell about the head record.
inline bool has_marks(const UtteranceSyllable& record) {
    return record.n_punc > 0 || record.cssml_tag.breaktime[0] != '\0';
}

}  // namespace kavi::tool

#endif  // KAVI_TOOL_NAMES_H
