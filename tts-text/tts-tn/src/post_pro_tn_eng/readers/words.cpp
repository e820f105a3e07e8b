#include "words.h"

#include <algorithm>

#include "../common/ascii.h"
#include "EngLexicon.h"
#include "months.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

WordKind word_kind(std::string_view word) {
    if (!word.empty() && is_lower(word[0])) return WordKind::plain;
    if (std::all_of(word.begin(), word.end(), is_upper)) return WordKind::capitals;
    if (word == "Tel") return WordKind::telephone_label;
    return month_name(word) != nullptr ? WordKind::month : WordKind::plain;
}

void ask_lexicon(std::string_view word) {
    char sz_desc[WORD_MAX_LEN];
    *std::transform(word.begin(), word.end(), sz_desc, to_lower) = '\0';
    char sz_phone[256] = {};
    static_cast<void>(eng_lexicon_lookup(sz_desc, sz_phone, sizeof sz_phone));
}

}  // namespace kavi::tn
