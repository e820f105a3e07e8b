// Ordinal numbers of up to three digits: the last word is an ordinal, those before it are
// cardinals.

#include <cstring>

#include "digits.h"

namespace kavi {

char* PostProTnEng::str_turn(char* sz_source_text, char* sz_target_text) {
    const std::size_t length = std::strlen(sz_source_text);
    if (length < 1 || length > 3) return nullptr;
    const tn::Digits digits(sz_source_text, length);
    tn::NumberWords words(sz_target_text);
    words.append_hundreds(digits.hundreds);
    if (digits.hundreds != '0' && (digits.tens != '0' || digits.units != '0')) {
        words.append(" and ");
    }
    if (digits.tens == '1') {
        words.append(tn::number_word(s_number_to_turn, '1', digits.units));
    } else if (digits.tens != '0' && digits.units == '0') {
        words.append(tn::number_word(s_number_to_turn, digits.tens, '0'));
    } else {
        if (digits.tens != '0') {
            words.append(tn::number_word(s_number_to_char, digits.tens, '0'));
            words.append(" ");
        }
        if (digits.units != '0') words.append(tn::number_word(s_number_to_turn, digits.units));
    }
    words.append(" ");
    return sz_target_text;
}

}  // namespace kavi
