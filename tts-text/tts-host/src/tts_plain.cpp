#include "tts_plain.h"

namespace kavi {

namespace {

enum class Side { after_word, before_word, in_turn };

// How a mark is written.
struct WrittenMark {
    const char* text;
    Side side;
};

WrittenMark written(PUNC_type punc) {
    switch (punc) {
        case PUNC_DUN_FE:
        case PUNC_DOU_FE: return {",", Side::after_word};
        case PUNC_FEN_FE: return {";", Side::after_word};
        case PUNC_JU_FE: return {".", Side::after_word};
        case PUNC_WEN_FE: return {"?", Side::after_word};
        case PUNC_TAN_FE: return {"!", Side::after_word};
        case PUNC_MAO_FE: return {":", Side::after_word};
        case PUNC_ZUOSHU_FE: return {"\"", Side::before_word};
        case PUNC_YOUSHU_FE:
        case PUNC_YOUYIN_FE: return {"\"", Side::after_word};
        case PUNC_ZUOYIN_FE: return {"\"", Side::in_turn};
        case PUNC_ZUOKUO_FE: return {"(", Side::before_word};
        case PUNC_YOUKUO_FE: return {")", Side::after_word};
        case PUNC_SHENGLUE_FE: return {"...", Side::after_word};
        case PUNC_POZHE_FE: return {" -", Side::after_word};
        default: return {"", Side::after_word};
    }
}

}  // namespace

std::string plain_text(const UtteranceSyllable* records, int n_records) {
    std::string text;
    std::string opening;  // marks that stand before the next word, and those after them
    bool is_quoted = false;
    for (int i = 0; i < n_records; ++i) {
        const UtteranceSyllable& record = records[i];
        if (i > 0) {
            if (!text.empty()) text += ' ';
            text += opening;
            text += record.syllable;
            opening.clear();
        }
        for (int k = 0; k < record.n_punc; ++k) {
            const WrittenMark mark = written(record.punc_arr[k]);
            const bool opens =
                mark.side == Side::before_word || (mark.side == Side::in_turn && !is_quoted);
            if (mark.side == Side::in_turn) is_quoted = !is_quoted;
            (opens || !opening.empty() ? opening : text) += mark.text;
        }
    }
    return text + opening;
}

}  // namespace kavi
