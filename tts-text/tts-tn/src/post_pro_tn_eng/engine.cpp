// Wrappers: the readers and number words as operations on sections and NUL-terminated buffers.

#include "common/arena.h"
#include "numbers/number_words.h"
#include "post_pro_tn_eng.h"
#include "readers/months.h"
#include "readers/readers.h"
#include "readers/words.h"
#include "tokenize/token_window.h"
#include "tokenize/tokenize.h"

namespace kavi {

using namespace tn;

namespace {

int decide(bool (*test)(const Token*), Section* section) {
    return test(TokenWindow(section).begin()) ? 1 : 0;
}

Section* append_from(Reader* read, Section* section, char* target) {
    const TokenWindow tokens(section);
    Reading reading(target);
    return read(tokens.begin(), reading)->section;
}

char* append_from(void (*read)(std::string_view, Reading&), char* source, char* target) {
    Reading reading(target);
    read(source, reading);
    return target;
}

char* replace_by(std::string_view words, char* target) {
    Reading(target, 0).append(words);
    return target;
}

// Reads the pattern that a mark begins and appends it to the output. Returns the last section
// consumed, or null when the output is full.
Section* append_mark(MarkReader* read, const Token* mark, char* target) {
    char scratch[WORD_MAX_LEN];
    Reading reading(scratch, 0);
    BoundedText output(target, SZ_TEXT_MAX_LEN);
    const Token* last = read(mark, reading, output);
    return last != nullptr ? last->section : nullptr;
}

bool append_words(const char* words, char* target) {
    return BoundedText(target, SZ_TEXT_MAX_LEN).append(words);
}

}  // namespace

PostProTnEng::PostProTnEng() : _mem_handle(nullptr) {}

void PostProTnEng::init(mem_stack_handle mem_handle) {
    _mem_handle = mem_handle;
}

void PostProTnEng::re_regular(char* sz_source_text) {
    tn::re_regular(sz_source_text);
}

// ---- readers ----

int PostProTnEng::phone_number_decide(Section* p_section) {
    return decide(tn::phone_number_decide, p_section);
}

Section* PostProTnEng::phone_number_read(Section* p_section, char* sz_target_text) {
    return append_from(tn::phone_number_read, p_section, sz_target_text);
}

int PostProTnEng::month_def(char* sz_source) {
    return month_name(sz_source) != nullptr ? 1 : 0;
}

char* PostProTnEng::month_read(char* sz_source_text, char* sz_target_text) {
    const char* name = month_name(sz_source_text);
    return replace_by(name != nullptr ? name : sz_source_text, sz_target_text);
}

int PostProTnEng::data_decide(Section* p_section) {
    return decide(tn::data_decide, p_section);
}

Section* PostProTnEng::data_number(Section* p_section, char* sz_target_text) {
    return append_from(tn::data_number, p_section, sz_target_text);
}

char* PostProTnEng::year_read(char* sz_source_text, char* sz_target_text) {
    return append_from(tn::year_read, sz_source_text, sz_target_text);
}

int PostProTnEng::fraction_decide(Section* pSection) {
    return decide(tn::fraction_decide, pSection);
}

Section* PostProTnEng::fraction_number(Section* pSection, char* sz_target_text) {
    return append_from(tn::fraction_number, pSection, sz_target_text);
}

int PostProTnEng::decimal_decide(Section* pSection) {
    return decide(tn::decimal_decide, pSection);
}

Section* PostProTnEng::decimal_number(Section* psection, char* sz_target_text) {
    return append_from(tn::decimal_number, psection, sz_target_text);
}

int PostProTnEng::currency_decide(Section* pSection) {
    TokenWindow tokens(pSection);
    return tokens.is_amount_before_dollar(tokens.begin()) ? 1 : 0;
}

Section* PostProTnEng::currrency_read(Section* pSection, char* sz_target_text) {
    return append_from(tn::currrency_read, pSection, sz_target_text);
}

int PostProTnEng::time_decide(Section* pSection) {
    return tn::time_decide(TokenWindow(pSection).begin());
}

Section* PostProTnEng::time_number(Section* psection, char* sz_target_text) {
    if (!gives_block(_mem_handle, WORD_MAX_LEN)) return nullptr;
    const auto form = static_cast<TimeForm>(psection->m_nmark);
    if (form != SHORT_TIME && form != LONG_TIME) return nullptr;
    const TokenWindow tokens(psection);
    Reading reading(sz_target_text);
    return tn::time_number(tokens.begin(), form, reading)->section;
}

Section* PostProTnEng::str_number(Section* p_section, char* sz_target_text) {
    return append_from(tn::str_number, p_section, sz_target_text);
}

Section* PostProTnEng::turn(Section* p_section, char* sz_target_text) {
    return append_from(tn::turn, p_section, sz_target_text);
}

int PostProTnEng::process_upper_case(Section* m_ptemp_section, char* sz_target) {
    const std::string_view word = m_ptemp_section->sz_char;
    if (word_kind(word) != WordKind::capitals) return 0;
    ask_lexicon(word);
    replace_by(word, sz_target);
    return 1;
}

bool PostProTnEng::process_bracket(Section*& p_temp_section, char* sz_target) {
    const TokenWindow tokens(p_temp_section);
    const Token* bracket = tokens.begin();
    if (!is_number(bracket + 1)) return append_words("<punc=zuokuo>", sz_target);
    Section* last = append_mark(bracket_read, bracket, sz_target);
    if (last != nullptr) p_temp_section = last;
    return last != nullptr;
}

Section* PostProTnEng::process_plus(Section* p_temp_section, char* sz_target) {
    const TokenWindow tokens(p_temp_section);
    const Token* plus = tokens.begin();
    if (!is_number(plus - 1)) return append_mark(plus_read, plus, sz_target);
    return append_words("add ", sz_target) ? p_temp_section : nullptr;
}

Section* PostProTnEng::process_single_quote(Section* p_temp_section, char* /*sz_target*/) {
    tn::process_single_quote(TokenWindow(p_temp_section).begin());
    return p_temp_section;
}

// ---- numbers ----

char* PostProTnEng::number_read(char* sz_source_text, char* sz_target_text) {
    return append_from(append_cardinal, sz_source_text, sz_target_text);
}

char* PostProTnEng::number_to_normal(char* sz_source_text, char* sz_target_text) {
    return append_from(append_each_digit, sz_source_text, sz_target_text);
}

int PostProTnEng::number_def(char* sz_source) {
    return is_digits(sz_source) ? 1 : 0;
}

char* PostProTnEng::str_turn(char* sz_source_text, char* sz_target_text) {
    Reading reading(sz_target_text);
    return append_ordinal(sz_source_text, reading) ? sz_target_text : nullptr;
}

char* PostProTnEng::number_to_string(char* sz_source_text, char* sz_target_text) {
    *sz_target_text = '\0';
    return append_from(append_number, sz_source_text, sz_target_text);
}

}  // namespace kavi
