// Brackets and plus signs that begin telephone numbers, and apostrophes.

#include <cstring>

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

namespace {

struct Contraction {
    char letters[3];
    char word[5];  // NUL-terminated: it is copied into sections of the host
    unsigned char length;
};

constexpr Contraction CONTRACTIONS[] = {
    {"t", "not", 3}, {"s", "is", 2}, {"re", "are", 3}, {"ll", "will", 4}, {"m", "am", 2},
};

// Reads `number` as the country code and the tokens after it as the telephone number. Null when the
// output is full.
const Token* country_code_read(const Token* number, Reading& reading, BoundedText& output) {
    append_cardinal(number->text(), reading);
    if (!output.append("country code ") || !output.append(reading.text()) || !output.append(" ")) {
        return nullptr;
    }
    reading.clear_words();
    const Token* last = phone_number_read(number + 1, reading);
    return output.append(reading.text()) && output.append(" ") ? last : nullptr;
}

}  // namespace

const Token* bracket_read(const Token* bracket, Reading& reading, BoundedText& output) {
    const Token* mark = bracket + 2;
    const bool begins_number = mark->kind == MARKSYMBOL && phone_number_decide(bracket + 3);
    return begins_number ? country_code_read(bracket + 1, reading, output) : bracket;
}

const Token* plus_read(const Token* plus, Reading& reading, BoundedText& output) {
    const bool begins_number = is_number(plus + 1) && phone_number_decide(plus + 2);
    return begins_number ? country_code_read(plus + 1, reading, output) : plus;
}

std::string_view find_contraction(std::string_view letters) {
    if (letters.empty() || letters.size() > 2) return {};
    const char second = letters.size() == 2 ? letters[1] : '\0';
    for (const Contraction& row : CONTRACTIONS) {
        if (row.letters[0] == letters[0] && row.letters[1] == second) return {row.word, row.length};
    }
    return {};
}

std::string_view process_single_quote(const Token* apostrophe) {
    const Token* letters = apostrophe + 1;
    const std::string_view word = find_contraction(letters->text());
    if (!word.empty() && letters->section != nullptr) {
        std::memcpy(letters->section->sz_char, word.data(), word.size() + 1);
    }
    return word;
}

}  // namespace kavi::tn
