#include "tts_names.h"

namespace kavi {

namespace {

struct PauseRow {
    PAUSE_type pause;
    std::string_view name;
};

constexpr PauseRow PAUSES[] = {
    {PAUSE_SYL_FE, "syl"},
    {PAUSE_PHONE_FE, "phone"},
    {PAUSE_SYLLABLE_FE, "syllable"},
    {PAUSE_WORD_FE, "word"},
    {PAUSE_PHRASE_FE, "phrase"},
    {PAUSE_INTONATION_PHRASE_FE, "intonation phrase"},
    {PAUSE_SENTENCE_FE, "sentence"},
    {PAUSE_SYLLABLE_FORCE_FE, "syllable, forced"},
    {PAUSE_WORD_FORCE_FE, "word, forced"},
    {PAUSE_PHRASE_FORCE_FE, "phrase, forced"},
    {PAUSE_INTONATION_PHRASE_FORCE_FE, "intonation phrase, forced"},
    {PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE, "plrule intonation phrase, forced"},
};

struct PunctuationRow {
    PUNC_type punc;
    std::string_view name;
};

constexpr PunctuationRow PUNCTUATION[] = {
    {PUNC_NULL_FE, "unknown"},  {PUNC_DUN_FE, "dun"},       {PUNC_DOU_FE, "dou"},
    {PUNC_FEN_FE, "fen"},       {PUNC_JU_FE, "ju"},         {PUNC_WEN_FE, "wen"},
    {PUNC_TAN_FE, "tan"},       {PUNC_MAO_FE, "mao"},       {PUNC_ZUOSHU_FE, "zuoshu"},
    {PUNC_YOUSHU_FE, "youshu"}, {PUNC_ZUOYIN_FE, "zuoyin"}, {PUNC_YOUYIN_FE, "youyin"},
    {PUNC_ZUOKUO_FE, "zuokuo"}, {PUNC_YOUKUO_FE, "youkuo"}, {PUNC_SHENGLUE_FE, "shenglue"},
    {PUNC_POZHE_FE, "pozhe"},   {TN_BEGIN_FE, "tnbegin"},   {TN_END_FE, "tnend"},
    {POIB_FE, "POIB"},          {POIE_FE, "POIE"},
};

// The rows are indexed by value, from the least on.
constexpr bool are_in_order() {
    int value = PAUSE_SYL_FE;
    for (const PauseRow& row : PAUSES) {
        if (row.pause != value++) return false;
    }
    value = PUNC_NULL_FE;
    for (const PunctuationRow& row : PUNCTUATION) {
        if (row.punc != value++) return false;
    }
    return true;
}
static_assert(are_in_order());

template <typename Row, int N>
std::string_view name_at(const Row (&rows)[N], int index) {
    return index >= 0 && index < N ? rows[index].name : "unknown";
}

}  // namespace

std::string_view pause_name(PAUSE_type pause) {
    return name_at(PAUSES, pause - PAUSE_SYL_FE);
}

std::string_view punctuation_name(PUNC_type punc) {
    return name_at(PUNCTUATION, punc);
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
