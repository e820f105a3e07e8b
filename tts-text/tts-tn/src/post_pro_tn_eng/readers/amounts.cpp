// Fractions, decimals and money in dollars.

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

bool fraction_decide(const Token* number) {
    return is_mark(number + 1, '/') && number[2].has_digits_only;
}

const Token* fraction_number(const Token* number, Reading& reading) {
    const Token* below = number + 2;
    append_number(number->text(), reading);
    reading.append(" over ");
    append_number(below->text(), reading);
    reading.append(" ");
    return below;
}

bool decimal_decide(const Token* number) {
    return is_mark(number + 1, '.') && number[2].has_digits_only;
}

const Token* decimal_number(const Token* number, Reading& reading) {
    const Token* decimals = number + 2;
    append_number(number->text(), reading);
    reading.append(" point ");
    append_each_digit(decimals->text(), reading);
    return decimals;
}

// Appends the whole dollars and their unit. Returns the last token consumed.
static const Token* read_dollars(const Token* amount, Reading& reading) {
    if (amount[1].first() == '.') {
        append_number(amount->text(), reading);
        const int dollars = value_of(amount->text());
        if (dollars != 0) reading.append(dollars == 1 ? "dollar " : "dollars ");
        return amount;
    }
    const Token* last = str_number(amount, reading);
    reading.end_word();
    reading.append("dollars ");
    return last;
}

const Token* currrency_read(const Token* amount, Reading& reading) {
    const Token* last = read_dollars(amount, reading);
    const Token* cents = ahead(last, 2);
    if (!is_mark(ahead(last, 1), '.') || !cents->has_digits_only) return last;
    append_cardinal(cents->text(), reading);
    reading.append(value_of(cents->text()) > 1 ? "cents " : "cent ");
    return cents;
}

}  // namespace kavi::tn
