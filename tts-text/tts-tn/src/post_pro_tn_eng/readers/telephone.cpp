// Telephone numbers: "area code ", then digit by digit. A first group of 800 or 900 is a number.

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

bool phone_number_decide(const Token* token) {
    return is_mark(token, '(') || token->has_digits_only || is_mark(token, '-') ||
           is_mark(token, ' ');
}

const Token* phone_number_read(const Token* first, Reading& reading) {
    reading.append("area code ");
    const Token* token = first;
    for (; token - first < TELEPHONE_SECTIONS_MAX; ++token) {
        if (token->kind == MARKSYMBOL) continue;
        if (!is_number(token)) break;
        const int value = token == first ? value_of(token->text()) : 0;
        if (value == 800 || value == 900) {
            reading.append(value == 800 ? "eight hundred " : "nine hundred ");
            reading.note_digits(token->text());
        } else {
            append_each_digit(token->text(), reading);
            reading.append(" ");
        }
    }
    return token == first ? first : token - 1;
}

}  // namespace kavi::tn
