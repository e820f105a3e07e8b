// The object itself, and the readers one by one, as operations on NUL-terminated buffers.

#include "numbers/number_words.h"
#include "post_pro_tn_eng.h"
#include "readers/months.h"
#include "readers/readers.h"
#include "readers/sections.h"
#include "readers/words.h"
#include "tokenize/tokenize.h"

namespace kavi {

using namespace tn;

PostProTnEng::PostProTnEng() : _mem_handle(nullptr) {}

void PostProTnEng::init(mem_stack_handle mem_handle) {
    _mem_handle = mem_handle;
}

void PostProTnEng::re_regular(char* sz_source_text) {
    tn::re_regular(sz_source_text);
}

// ---- readers ----

int PostProTnEng::phone_number_decide(Section* p_section) {
    return tn::phone_number_decide(p_section) ? 1 : 0;
}

Section* PostProTnEng::phone_number_read(Section* p_section, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::phone_number_read(p_section, reading);
}

int PostProTnEng::month_def(char* sz_source) {
    return month_name(sz_source) != nullptr ? 1 : 0;
}

char* PostProTnEng::month_read(char* sz_source_text, char* sz_target_text) {
    const char* name = month_name(sz_source_text);
    sz_target_text[0] = '\0';
    Reading(sz_target_text).append(name != nullptr ? name : sz_source_text);
    return sz_target_text;
}

int PostProTnEng::data_decide(Section* p_section) {
    return tn::data_decide(p_section) ? 1 : 0;
}

Section* PostProTnEng::data_number(Section* p_section, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::data_number(p_section, reading);
}

char* PostProTnEng::year_read(char* sz_source_text, char* sz_target_text) {
    Reading reading(sz_target_text);
    tn::year_read(sz_source_text, reading);
    return sz_target_text;
}

int PostProTnEng::fraction_decide(Section* pSection) {
    return tn::fraction_decide(pSection) ? 1 : 0;
}

Section* PostProTnEng::fraction_number(Section* pSection, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::fraction_number(pSection, reading);
}

int PostProTnEng::decimal_decide(Section* pSection) {
    return tn::decimal_decide(pSection) ? 1 : 0;
}

Section* PostProTnEng::decimal_number(Section* psection, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::decimal_number(psection, reading);
}

int PostProTnEng::currency_decide(Section* pSection) {
    const Section* end = pSection;
    while (end != nullptr && belongs_to_amount(end)) end = end->m_pnext;
    return is_dollar(end) ? 1 : 0;
}

Section* PostProTnEng::currrency_read(Section* pSection, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::currrency_read(pSection, reading);
}

int PostProTnEng::time_decide(Section* pSection) {
    return tn::time_decide(pSection);
}

Section* PostProTnEng::time_number(Section* psection, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::time_number(psection, static_cast<TimeForm>(psection->m_nmark), reading);
}

Section* PostProTnEng::str_number(Section* p_section, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::str_number(p_section, reading);
}

Section* PostProTnEng::turn(Section* p_section, char* sz_target_text) {
    Reading reading(sz_target_text);
    return tn::turn(p_section, reading);
}

int PostProTnEng::process_upper_case(Section* m_ptemp_section, char* sz_target) {
    const std::string_view word = m_ptemp_section->sz_char;
    if (word_kind(word) != WordKind::capitals) return 0;
    ask_lexicon(word);
    sz_target[0] = '\0';
    Reading(sz_target).append(word);
    return 1;
}

bool PostProTnEng::process_bracket(Section*& p_temp_section, char* sz_target) {
    char scratch[WORD_MAX_LEN] = "";
    Reading reading(scratch);
    BoundedText output(sz_target, SZ_TEXT_MAX_LEN);
    if (!is_number(p_temp_section->m_pnext)) return output.append("<punc=zuokuo>");
    Section* last = nullptr;
    const bool fits = bracket_read(p_temp_section, reading, output, last);
    if (fits && last != nullptr) p_temp_section = last;
    return fits;
}

Section* PostProTnEng::process_plus(Section* p_temp_section, char* sz_target) {
    char scratch[WORD_MAX_LEN] = "";
    Reading reading(scratch);
    BoundedText output(sz_target, SZ_TEXT_MAX_LEN);
    if (is_number(p_temp_section->m_pprevious)) {
        return output.append("add ") ? p_temp_section : nullptr;
    }
    Section* last = nullptr;
    if (!plus_read(p_temp_section, reading, output, last)) return nullptr;
    return last != nullptr ? last : p_temp_section;
}

Section* PostProTnEng::process_single_quote(Section* p_temp_section, char* /*sz_target*/) {
    tn::process_single_quote(p_temp_section);
    return p_temp_section;
}

// ---- numbers ----

char* PostProTnEng::number_read(char* sz_source_text, char* sz_target_text) {
    Reading reading(sz_target_text);
    append_cardinal(sz_source_text, reading);
    return sz_target_text;
}

char* PostProTnEng::number_to_normal(char* sz_source_text, char* sz_target_text) {
    Reading reading(sz_target_text);
    append_each_digit(sz_source_text, reading);
    return sz_target_text;
}

int PostProTnEng::number_def(char* sz_source) {
    return is_digits(sz_source) ? 1 : 0;
}

char* PostProTnEng::str_turn(char* sz_source_text, char* sz_target_text) {
    Reading reading(sz_target_text);
    return append_ordinal(sz_source_text, reading) ? sz_target_text : nullptr;
}

char* PostProTnEng::number_to_string(char* sz_source_text, char* sz_target_text) {
    sz_target_text[0] = '\0';
    Reading reading(sz_target_text);
    append_number(sz_source_text, reading);
    return sz_target_text;
}

}  // namespace kavi
