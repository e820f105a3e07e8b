// Classifying words.

#include "words.h"

#include <algorithm>

#include "../common/ascii.h"
#include "EngLexicon.h"
#include "months.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

namespace {

bool is_in_capitals(std::string_view word) {
    for (const char c : word) {
        if (!is_upper(c)) return false;
    }
    return true;
}

}  // namespace

WordKind word_kind(std::string_view word) {
    if (!word.empty() && begins_plain_word(word.data())) return WordKind::plain;
    if (is_in_capitals(word)) return WordKind::capitals;
    if (word == TELEPHONE_LABEL) return WordKind::telephone_label;
    return month_name(word) != nullptr ? WordKind::month : WordKind::plain;
}

void ask_lexicon(std::string_view word) {
    char sz_desc[WORD_MAX_LEN];
    const auto lower = [](char c) { return static_cast<char>(c - 'A' + 'a'); };
    *std::transform(word.begin(), word.end(), sz_desc, lower) = '\0';
    char sz_phone[256] = {};
    static_cast<void>(eng_lexicon_lookup(sz_desc, sz_phone, sizeof sz_phone));
}

}  // namespace kavi::tn
