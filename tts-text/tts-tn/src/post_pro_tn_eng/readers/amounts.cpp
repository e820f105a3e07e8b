// Fractions, decimals and money in dollars.

#include "amounts.h"

#include "parts.h"

namespace kavi {

using namespace tn;

int PostProTnEng::fraction_decide(Section* pSection) {
    Section* below = ahead(pSection, 2);
    const bool is_fraction =
        is_mark(ahead(pSection, 1), '/') && below != nullptr && number_def(below->sz_char) == 1;
    return is_fraction ? 1 : 0;
}

Section* PostProTnEng::fraction_number(Section* pSection, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return pSection;
    Section* below = ahead(pSection, 2);
    Reading reading(sz_target_text);
    number_to_string(pSection->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(" over ");
    number_to_string(below->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(" ");
    return below;
}

int PostProTnEng::decimal_decide(Section* pSection) {
    Section* decimals = ahead(pSection, 2);
    const bool is_decimal = is_mark(ahead(pSection, 1), '.') && decimals != nullptr &&
                            number_def(decimals->sz_char) == 1;
    return is_decimal ? 1 : 0;
}

Section* PostProTnEng::decimal_number(Section* psection, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return psection;
    Section* decimals = ahead(psection, 2);
    Reading reading(sz_target_text);
    number_to_string(psection->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(" point ");
    number_to_normal(decimals->sz_char, scratch.text());
    reading.take(scratch);
    return decimals;
}

int PostProTnEng::currency_decide(Section* pSection) {
    const Section* end = pSection;
    while (end != nullptr && belongs_to_amount(end)) end = end->m_pnext;
    return is_dollar(end) ? 1 : 0;
}

Section* PostProTnEng::currrency_read(Section* pSection, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return pSection;
    Reading reading(sz_target_text);
    Section* amount = pSection;  // the last section of the whole dollars
    const Section* next = pSection->m_pnext;
    if (next != nullptr && next->sz_char[0] == '.') {
        number_to_string(pSection->sz_char, scratch.text());
        reading.take(scratch);
        const long dollars = value_of(pSection->sz_char);
        if (dollars != 0) reading.append(dollars == 1 ? "dollar " : "dollars ");
    } else {
        amount = str_number(pSection, scratch.text());
        reading.take(scratch);
        reading.append("dollars ");
    }
    Section* cents = ahead(amount, 2);
    if (!is_mark(ahead(amount, 1), '.') || !is_number(cents)) return amount;
    number_read(cents->sz_char, scratch.text());
    reading.take(scratch);
    reading.append(value_of(cents->sz_char) > 1 ? "cents " : "cent ");
    return cents;
}

}  // namespace kavi
