// Fractions, decimals and money in dollars.

#include "../numbers/number_words.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

bool fraction_decide(Section* number) {
    return is_mark(ahead(number, 1), '/') && has_digits_only(ahead(number, 2));
}

Section* fraction_number(Section* number, Reading& reading) {
    Section* below = number->m_pnext->m_pnext;
    append_number(number->sz_char, reading);
    reading.append(" over ");
    append_number(below->sz_char, reading);
    reading.append(" ");
    return below;
}

bool decimal_decide(Section* number) {
    return is_mark(ahead(number, 1), '.') && has_digits_only(ahead(number, 2));
}

Section* decimal_number(Section* number, Reading& reading) {
    Section* decimals = number->m_pnext->m_pnext;
    append_number(number->sz_char, reading);
    reading.append(" point ");
    append_each_digit(decimals->sz_char, reading);
    return decimals;
}

bool belongs_to_amount(const Section* section) {
    const char first = section->sz_char[0];
    return first == ',' || first == '.' || has_digits_only(section);
}

bool is_dollar(const Section* section) {
    return section != nullptr && section->sz_char[0] == '$';
}

// The whole dollars with their unit; the last section of them, or null.
static Section* read_dollars(Section* amount, Reading& reading) {
    const Section* next = amount->m_pnext;
    if (next != nullptr && next->sz_char[0] == '.') {
        append_number(amount->sz_char, reading);
        const int dollars = value_of(amount);
        if (dollars != 0) reading.append(dollars == 1 ? "dollar " : "dollars ");
        return amount;
    }
    Section* last = str_number(amount, reading);
    const std::string_view text = reading.text();
    if (!text.empty() && is_letter(text.back())) reading.append(" ");  // after a word of the user's
    reading.append("dollars ");
    return last;
}

Section* currrency_read(Section* amount, Reading& reading) {
    Section* last = read_dollars(amount, reading);
    Section* cents = ahead(last, 2);
    if (!is_mark(ahead(last, 1), '.') || !is_number(cents)) return last;
    append_cardinal(cents->sz_char, reading);
    reading.append(value_of(cents) > 1 ? "cents " : "cent ");
    return cents;
}

}  // namespace kavi::tn
