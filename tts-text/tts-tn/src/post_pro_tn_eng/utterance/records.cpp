// Single records: words, punctuation marks and forced pauses, and the layout of the record.

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "post_pro_tn_eng.h"
#include "word_filler.h"

namespace kavi {

// The binary layout that separately compiled hosts rely on.
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

// A name of at most eight characters as a number, the first character in the lowest byte, so that
// names compare by one instruction. 0 for a longer name.
constexpr std::uint64_t key_of(std::string_view name) {
    if (name.size() > sizeof(std::uint64_t)) return 0;
    std::uint64_t key = 0;
    for (std::size_t i = name.size(); i-- > 0;) {
        key = key << 8 | static_cast<unsigned char>(name[i]);
    }
    return key;
}

struct PuncName {
    std::uint64_t key;
    PUNC_type punc;
    bool forces_pause;
};

// Searched in order. The marks that the tokenizer writes come first, frequent ones before the
// others.
// clang-format off
constexpr PuncName PUNC_NAMES[] = {
    {key_of("ju"),       PUNC_JU_FE,       true},
    {key_of("dou"),      PUNC_DOU_FE,      true},
    {key_of("wen"),      PUNC_WEN_FE,      true},
    {key_of("zuoyin"),   PUNC_ZUOYIN_FE,   false},
    {key_of("zuokuo"),   PUNC_ZUOKUO_FE,   false},
    {key_of("youkuo"),   PUNC_YOUKUO_FE,   false},
    {key_of("mao"),      PUNC_MAO_FE,      true},
    {key_of("fen"),      PUNC_FEN_FE,      true},
    {key_of("tan"),      PUNC_TAN_FE,      true},
    {key_of("dun"),      PUNC_DUN_FE,      true},
    {key_of("zuoshu"),   PUNC_ZUOSHU_FE,   false},
    {key_of("youshu"),   PUNC_YOUSHU_FE,   false},
    {key_of("youyin"),   PUNC_YOUYIN_FE,   false},
    {key_of("shenglue"), PUNC_SHENGLUE_FE, true},
    {key_of("pozhe"),    PUNC_POZHE_FE,    false},
    {key_of("tnbegin"),  TN_BEGIN_FE,      false},
    {key_of("tnend"),    TN_END_FE,        false},
    {key_of("POIB"),     POIB_FE,          false},
    {key_of("POIE"),     POIE_FE,          false},
};
// clang-format on

struct PauseCharacter {
    char character;
    PAUSE_type pause;
};

// "*" is a pause character too, but changes nothing.
constexpr PauseCharacter PAUSE_CHARACTERS[] = {
    {'&', PAUSE_SYLLABLE_FORCE_FE},
    {'+', PAUSE_SYLLABLE_FORCE_FE},
    {' ', PAUSE_WORD_FORCE_FE},
    {'|', PAUSE_PHRASE_FORCE_FE},
    {'#', PAUSE_INTONATION_PHRASE_FORCE_FE},
};

void force_pause(UtteranceSyllable& record, PAUSE_type pause) {
    record.pause_type = pause;
    record.pause_type_tn = pause;
}

}  // namespace

bool PostProTnEng::insert_syllable(int n, UtteranceSyllable* utt, const char* sz_char_buf) {
    if (!tn::WordFiller(_mem_handle, utt + n).store(sz_char_buf)) return false;
    utt[n].cssml_tag = {};
    return true;
}

// Appends the mark with this key. An unknown one takes an entry, which stays PUNC_NULL_FE; an
// eleventh is dropped. Of two dashes in a row, the second forces a pause.
static void add_punc(UtteranceSyllable& record, std::uint64_t key) {
    if (record.n_punc >= PUNC_MAX) return;
    for (const PuncName& row : PUNC_NAMES) {
        if (row.key != key) continue;
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

bool tn::RecordFiller::take_tag(const TextEvent& event) {
    const std::string_view text = event.text();
    if (event.kind == TextEventKind::punc) {  // the most frequent
        add_punc(record_[-1], key_of(text));
        return true;
    }
    switch (event.kind) {
        case TextEventKind::breaktime: set_breaktime(record_[-1], text); return true;
        case TextEventKind::span_end: spans_.leave(); return true;
        default: {
            const std::size_t name = std::min(text.find('='), text.size());
            return spans_.enter(text.substr(0, name), text.substr(std::min(name + 1, text.size())));
        }
    }
}

bool PostProTnEng::insert_punc(int n, UtteranceSyllable* utt, char* punc_str) {
    add_punc(utt[n - 1], key_of(punc_str));
    return true;
}

bool PostProTnEng::insert_pause(int n, UtteranceSyllable* utt, char ch) {
    assert(ch == '&' || ch == ' ' || ch == '|' || ch == '#' || ch == '*' || ch == '+');
    for (const PauseCharacter& row : PAUSE_CHARACTERS) {
        if (row.character == ch) force_pause(utt[n - 1], row.pause);
    }
    return true;
}

}  // namespace kavi
