// Single records: words, punctuation marks and forced pauses.

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstring>
#include <string_view>

#include "word_filler.h"

namespace kavi {

// What a host compiled elsewhere relies on.
static_assert(sizeof(PAUSE_type) == 4 && sizeof(PUNC_type) == 4 && sizeof(SYNTAX_type) == 4 &&
              sizeof(TAG_type) == 4 && sizeof(ZY_type) == 4);
static_assert(sizeof(CssmlTag) == 162 && offsetof(CssmlTag, quill_effect) == 140 &&
              offsetof(CssmlTag, ssml_w) == 160);
static_assert(offsetof(UtteranceSyllable, syl_len) == sizeof(char*) &&
              offsetof(UtteranceSyllable, letter) == sizeof(char*) + 2 &&
              offsetof(UtteranceSyllable, pause_type) == sizeof(char*) + 4 &&
              offsetof(UtteranceSyllable, tag_str) == sizeof(char*) + 28 &&
              offsetof(UtteranceSyllable, zy_type) == sizeof(char*) + 60 &&
              offsetof(UtteranceSyllable, zhuyin) == sizeof(char*) + 64 &&
              offsetof(UtteranceSyllable, zy_len) == 2 * sizeof(char*) + 64 &&
              offsetof(UtteranceSyllable, punc_arr) == 2 * sizeof(char*) + 72 &&
              offsetof(UtteranceSyllable, cssml_tag) == 2 * sizeof(char*) + 112 &&
              offsetof(UtteranceSyllable, ui_code) == 2 * sizeof(char*) + 274 &&
              offsetof(UtteranceSyllable, accent) == 2 * sizeof(char*) + 276);

namespace {

constexpr int PUNC_MAX = sizeof UtteranceSyllable::punc_arr / sizeof(PUNC_type);

struct PuncName {
    std::string_view name;
    PUNC_type punc;
    bool forces_pause;
};

// Searched in this order for an equal name.
// clang-format off
constexpr PuncName PUNC_NAMES[] = {
    {"dun",      PUNC_DUN_FE,      true},
    {"dou",      PUNC_DOU_FE,      true},
    {"fen",      PUNC_FEN_FE,      true},
    {"ju",       PUNC_JU_FE,       true},
    {"wen",      PUNC_WEN_FE,      true},
    {"tan",      PUNC_TAN_FE,      true},
    {"mao",      PUNC_MAO_FE,      true},
    {"zuoshu",   PUNC_ZUOSHU_FE,   false},
    {"youshu",   PUNC_YOUSHU_FE,   false},
    {"zuoyin",   PUNC_ZUOYIN_FE,   false},
    {"youyin",   PUNC_YOUYIN_FE,   false},
    {"zuokuo",   PUNC_ZUOKUO_FE,   false},
    {"youkuo",   PUNC_YOUKUO_FE,   false},
    {"shenglue", PUNC_SHENGLUE_FE, true},
    {"pozhe",    PUNC_POZHE_FE,    false},
    {"tnbegin",  TN_BEGIN_FE,      false},
    {"tnend",    TN_END_FE,        false},
    {"POIB",     POIB_FE,          false},
    {"POIE",     POIE_FE,          false},
};
// clang-format on

void force_pause(UtteranceSyllable& record, PAUSE_type pause) {
    record.pause_type = pause;
    record.pause_type_tn = pause;
}

}  // namespace

bool PostProTnEng::insert_syllable(int n, UtteranceSyllable* utt, const char* sz_char_buf) {
    if (!WordFiller(*this, utt + n).word(sz_char_buf)) return false;
    utt[n].cssml_tag = {};
    return true;
}

void WordFiller::add_punc(UtteranceSyllable& record, std::string_view name) {
    if (record.n_punc >= PUNC_MAX) return;
    for (const PuncName& row : PUNC_NAMES) {
        if (row.name != name) continue;
        record.punc_arr[record.n_punc] = row.punc;
        const bool second_dash = row.punc == PUNC_POZHE_FE && record.n_punc > 0 &&
                                 record.punc_arr[record.n_punc - 1] == PUNC_POZHE_FE;
        if (row.forces_pause || second_dash) {
            force_pause(record, PAUSE_INTONATION_PHRASE_FORCE_FE);
        }
        break;
    }
    ++record.n_punc;
}

bool PostProTnEng::insert_punc(int n, UtteranceSyllable* utt, char* punc_str) {
    WordFiller::add_punc(utt[n - 1], punc_str);
    return true;
}

bool PostProTnEng::insert_pause(int n, UtteranceSyllable* utt, char ch) {
    assert(ch == '&' || ch == ' ' || ch == '|' || ch == '#' || ch == '*' || ch == '+');
    switch (ch) {
        case '&':
        case '+': force_pause(utt[n - 1], PAUSE_SYLLABLE_FORCE_FE); break;
        case ' ': force_pause(utt[n - 1], PAUSE_WORD_FORCE_FE); break;
        case '|': force_pause(utt[n - 1], PAUSE_PHRASE_FORCE_FE); break;
        case '#': force_pause(utt[n - 1], PAUSE_INTONATION_PHRASE_FORCE_FE); break;
        default: break;
    }
    return true;
}

}  // namespace kavi
