// Brackets and plus signs that begin a telephone number, and apostrophes.

#include <cstring>

#include "../common/word_table.h"
#include "../numbers/number_words.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

namespace {

// Each word fits over its contraction's section.
constexpr char CONTRACTIONS[5][2][5] = {
    {"m", "am"}, {"s", "is"}, {"ll", "will"}, {"re", "are"}, {"t", "not"},
};

// The number is the country code, what follows it the telephone number.
bool country_code_read(Section* number, Reading& reading, BoundedText& output, Section*& last) {
    append_cardinal(number->sz_char, reading);
    if (!output.append("country code ") || !output.append(reading.text()) || !output.append(" ")) {
        return false;
    }
    reading.clear_words();
    last = phone_number_read(number->m_pnext, reading);
    return output.append(reading.text()) && output.append(" ");
}

}  // namespace

bool bracket_read(Section* bracket, Reading& reading, BoundedText& output, Section*& last) {
    Section* number = ahead(bracket, 1);
    const Section* mark = ahead(bracket, 2);
    last = nullptr;
    const bool begins_number =
        mark != nullptr && mark->m_nmark == MARKSYMBOL && phone_number_decide(ahead(bracket, 3));
    return !begins_number || country_code_read(number, reading, output, last);
}

bool plus_read(Section* plus, Reading& reading, BoundedText& output, Section*& last) {
    Section* number = ahead(plus, 1);
    last = nullptr;
    const bool begins_number = is_number(number) && phone_number_decide(ahead(plus, 2));
    return !begins_number || country_code_read(number, reading, output, last);
}

const char* find_contraction(std::string_view letters) {
    return find_word(CONTRACTIONS, letters);
}

void process_single_quote(Section* apostrophe) {
    Section* word = apostrophe->m_pnext;
    const char* full = word != nullptr ? find_contraction(word->sz_char) : nullptr;
    if (full != nullptr) std::memcpy(word->sz_char, full, std::strlen(full) + 1);
}

}  // namespace kavi::tn
