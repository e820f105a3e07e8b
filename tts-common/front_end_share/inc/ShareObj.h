// The front-end records that the engine fills and later stages of the host read. Names, order,
// widths and values are part of the binary interface: a host compiled separately reads the array.
#ifndef KAVI_SHARE_OBJ_H
#define KAVI_SHARE_OBJ_H

namespace kavi {

// The pause after a word.
enum PAUSE_type : int {
    PAUSE_SYLLABLE_FE = 0,
    PAUSE_WORD_FE = 1,
    PAUSE_PHRASE_FE = 2,
    PAUSE_INTONATION_PHRASE_FE = 3,
    PAUSE_SENTENCE_FE = 4,
    PAUSE_SYLLABLE_FORCE_FE = 5,
    PAUSE_WORD_FORCE_FE = 6,
    PAUSE_PHRASE_FORCE_FE = 7,
    PAUSE_INTONATION_PHRASE_FORCE_FE = 8,
    PAUSE_PHONE_FE = -1,
    PAUSE_SYL_FE = -2,
    PAUSE_PLRULE_INTONATION_PHRASE_FORCE_FE = 9,
};

enum SYNTAX_type : int {
    SYNTAX_SYLLABLE_FE = 0,
    SYNTAX_BASIC_WORD_FE = 1,
    SYNTAX_MID_WORD_FE = 2,
    SYNTAX_COMP_WORD_FE = 3,
};

enum TAG_type : int {
    TAG_NULL = 0,
    TAG_TN_FORCE = 1,
    TAG_TA_DICT = 2,
};

// The kind of pronunciation in `zhuyin`.
enum ZY_type : int {
    ZY_NULL = 0,
    ZY_TN_FORCE = 1,
    ZY_TA_DICT_SYLL = 2,
    ZY_TA_DICT_WORD = 3,
    ZY_DYZ_TBL = 4,
    ZY_ARTI_SYLL = 5,
};

// Punctuation marks, each with its name in "<punc=" tags.
enum PUNC_type : int {
    PUNC_NULL_FE = 0,       // none
    PUNC_DUN_FE = 1,        // dun
    PUNC_DOU_FE = 2,        // dou
    PUNC_FEN_FE = 3,        // fen
    PUNC_JU_FE = 4,         // ju
    PUNC_WEN_FE = 5,        // wen
    PUNC_TAN_FE = 6,        // tan
    PUNC_MAO_FE = 7,        // mao
    PUNC_ZUOSHU_FE = 8,     // zuoshu
    PUNC_YOUSHU_FE = 9,     // youshu
    PUNC_ZUOYIN_FE = 10,    // zuoyin
    PUNC_YOUYIN_FE = 11,    // youyin
    PUNC_ZUOKUO_FE = 12,    // zuokuo
    PUNC_YOUKUO_FE = 13,    // youkuo
    PUNC_SHENGLUE_FE = 14,  // shenglue
    PUNC_POZHE_FE = 15,     // pozhe
    TN_BEGIN_FE = 16,       // tnbegin
    TN_END_FE = 17,         // tnend
    POIB_FE = 18,           // POIB
    POIE_FE = 19,           // POIE
};

// The markup attributes of one word: NUL-terminated, at most 19 characters each, empty when an
// attribute does not apply.
struct CssmlTag {
    char breaktime[20];     // of the "<breaktime=" tag after the word
    char emphasis[20];      // of the enclosing "<emphasis=" span
    char pro_pitch[20];     // of the enclosing "<prosody=" spans, by attribute
    char pro_rate[20];      // likewise
    char pro_volume[20];    // likewise
    char pro_spectrum[20];  // likewise
    char poem[20];          // of the enclosing "<poem=" span
    char quill_effect[20];  // of the enclosing "<quill_effect=" spans, outermost first
    bool ssml_w;            // for a later stage
    bool ssml_w_end;        // for a later stage
};

// One word of an utterance. `syllable` and `zhuyin` are blocks of the arena with the sizes given
// here. Fields "for a later stage" are zero unless said otherwise.
struct UtteranceSyllable {
    char* syllable;            // the word; null in a record without one
    short syl_len;             // bytes of `syllable`: length + 1
    char letter;               // for a later stage
    PAUSE_type pause_type;     // pause after the word
    PAUSE_type pause_pl_type;  // for a later stage
    PAUSE_type pausetype_ta;   // for a later stage, set like pause_type
    PAUSE_type pause_type_tn;  // the pause that text normalisation chose
    SYNTAX_type syntax_type;   // for a later stage
    TAG_type tag_type;         // for a later stage
    char tag_str[4][8];        // for a later stage
    ZY_type zy_type;           // for a later stage
    char* zhuyin;              // room for the pronunciation, for a later stage
    short zy_len;              // bytes of `zhuyin`, all zero
    int n_punc;                // entries of punc_arr in use, at most 10
    PUNC_type punc_arr[10];    // marks after the word, in text order
    CssmlTag cssml_tag;        // markup that applies to the word
    unsigned short ui_code;    // for a later stage
    unsigned short accent;     // for a later stage
};

}  // namespace kavi

#endif  // KAVI_SHARE_OBJ_H
