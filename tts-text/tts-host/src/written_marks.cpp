#include "written_marks.h"

namespace kavi::host {

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

void WrittenMarks::add(const UtteranceSyllable& record, std::string& text) {
    for (int i = 0; i < record.n_punc; ++i) {
        const WrittenMark mark = written(record.punc_arr[i]);
        const bool opens =
            mark.side == Side::before_word || (mark.side == Side::in_turn && !is_quoted_);
        if (mark.side == Side::in_turn) is_quoted_ = !is_quoted_;
        (opens || !opening_.empty() ? opening_ : text) += mark.text;
    }
}

}  // namespace kavi::host
