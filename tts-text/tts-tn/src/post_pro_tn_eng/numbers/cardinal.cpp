// Cardinal numbers of up to three digits, digit-by-digit reading and the digit test.

#include <cstring>

#include "../common/ascii.h"
#include "../common/reading.h"
#include "digits.h"

namespace kavi {

// A zero is never spoken here: zero hundreds are one blank, zero tens and units nothing.
char* PostProTnEng::number_read(char* sz_source_text, char* sz_target_text) {
    const tn::Digits digits(sz_source_text, std::strlen(sz_source_text));
    tn::NumberWords words(sz_target_text);
    words.append_hundreds(digits.hundreds);
    const char* joint = digits.hundreds != '0' ? " and " : "";
    if (digits.tens == '1') {
        words.append(joint);
        words.append(tn::number_word(s_number_to_char, '1', digits.units));
    } else if (digits.tens != '0') {
        words.append(joint);
        words.append(tn::number_word(s_number_to_char, digits.tens, '0'));
        words.append(" ");
        if (digits.units != '0') words.append(tn::number_word(s_number_to_char, digits.units));
    } else if (digits.units != '0') {
        words.append(joint);
        words.append(tn::number_word(s_number_to_char, digits.units));
    }
    words.append(" ");
    return sz_target_text;
}

char* PostProTnEng::number_to_normal(char* sz_source_text, char* sz_target_text) {
    constexpr std::size_t NO_DIGIT = 28;
    tn::Reading reading(sz_target_text);
    for (const char* c = sz_source_text; *c != '\0'; ++c) {
        const std::size_t row = tn::is_digit(*c) ? static_cast<std::size_t>(*c - '0') : NO_DIGIT;
        reading.append(s_number_to_char[row][1]);
        reading.append(" ");
    }
    return sz_target_text;
}

int PostProTnEng::number_def(char* sz_source) {
    return tn::is_digits(sz_source) ? 1 : 0;
}

}  // namespace kavi
