// Brackets and plus signs that begin a telephone number, and apostrophes.

#include <cstring>

#include "../common/word_table.h"
#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

namespace {

// Each word fits over its contraction's section.
constexpr char CONTRACTIONS[5][2][5] = {
    {"m", "am"}, {"s", "is"}, {"ll", "will"}, {"re", "are"}, {"t", "not"},
};

// The number is the country code, what follows it the telephone number.
bool country_code_read(const Token* number, Reading& reading, BoundedText& output,
                       const Token*& last) {
    append_cardinal(number->text(), reading);
    if (!output.append("country code ") || !output.append(reading.text()) || !output.append(" ")) {
        return false;
    }
    reading.clear_words();
    last = phone_number_read(number + 1, reading);
    return output.append(reading.text()) && output.append(" ");
}

}  // namespace

bool bracket_read(const Token* bracket, Reading& reading, BoundedText& output, const Token*& last) {
    const Token* number = bracket + 1;
    const Token* mark = bracket + 2;
    const bool begins_number = mark->kind == MARKSYMBOL && phone_number_decide(bracket + 3);
    return !begins_number || country_code_read(number, reading, output, last);
}

bool plus_read(const Token* plus, Reading& reading, BoundedText& output, const Token*& last) {
    const Token* number = plus + 1;
    const bool begins_number = is_number(number) && phone_number_decide(plus + 2);
    return !begins_number || country_code_read(number, reading, output, last);
}

const char* find_contraction(std::string_view letters) {
    return find_word(CONTRACTIONS, letters);
}

const char* process_single_quote(const Token* apostrophe) {
    const Token* word = apostrophe + 1;
    const char* full = find_contraction(word->text());
    if (full != nullptr && word->section != nullptr) {
        std::memcpy(word->section->sz_char, full, std::strlen(full) + 1);
    }
    return full;
}

}  // namespace kavi::tn
