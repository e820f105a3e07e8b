// Brackets, plus signs and apostrophes: marks whose meaning depends on their neighbours.

#include <cstring>

#include "../common/bounded_text.h"
#include "../common/word_table.h"
#include "parts.h"

namespace kavi {

using namespace tn;

namespace {

// Each word fits over its contraction's section.
constexpr char CONTRACTIONS[5][2][5] = {
    {"m", "am"}, {"s", "is"}, {"ll", "will"}, {"re", "are"}, {"t", "not"},
};

}  // namespace

bool PostProTnEng::process_bracket(Section*& p_temp_section, char* sz_target) {
    Scratch scratch(_mem_handle, WORD_MAX_LEN, WORD_MAX_LEN);
    if (!scratch) return true;
    Section* number = ahead(p_temp_section, 1);
    Section* mark = ahead(p_temp_section, 2);
    if (!is_number(number)) return BoundedText(sz_target, SZ_TEXT_MAX_LEN).append("<punc=zuokuo>");
    if (mark == nullptr || mark->m_nmark != MARKSYMBOL) return true;
    if (phone_number_decide(ahead(p_temp_section, 3)) == 0) return true;
    Section* last = country_code_read(number, scratch.text(), sz_target);
    if (last != nullptr) p_temp_section = last;
    return last != nullptr;
}

Section* PostProTnEng::process_plus(Section* p_temp_section, char* sz_target) {
    Scratch scratch(_mem_handle);
    if (!scratch) return p_temp_section;
    if (is_number(p_temp_section->m_pprevious)) {
        return BoundedText(sz_target, SZ_TEXT_MAX_LEN).append("add ") ? p_temp_section : nullptr;
    }
    Section* number = ahead(p_temp_section, 1);
    if (!is_number(number) || phone_number_decide(ahead(p_temp_section, 2)) == 0) {
        return p_temp_section;
    }
    return country_code_read(number, scratch.text(), sz_target);
}

Section* PostProTnEng::country_code_read(Section* p_number, char* sz_scratch, char* sz_target) {
    BoundedText output(sz_target, SZ_TEXT_MAX_LEN);
    number_read(p_number->sz_char, sz_scratch);
    if (!output.append("country code ") || !output.append(sz_scratch) || !output.append(" ")) {
        return nullptr;
    }
    sz_scratch[0] = '\0';
    Section* last = phone_number_read(p_number->m_pnext, sz_scratch);
    return output.append(sz_scratch) && output.append(" ") ? last : nullptr;
}

Section* PostProTnEng::process_single_quote(Section* p_temp_section, char* /*sz_target*/) {
    Section* word = p_temp_section->m_pnext;
    if (word == nullptr) return p_temp_section;
    if (const char* full = find_word(CONTRACTIONS, word->sz_char)) {
        std::memcpy(word->sz_char, full, std::strlen(full) + 1);
    }
    return p_temp_section;
}

}  // namespace kavi
