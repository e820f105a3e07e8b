// Telephone numbers: "area code ", then group by group, digit by digit.

#include "../numbers/number_words.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

bool phone_number_decide(const Section* section) {
    return is_mark(section, '(') || has_digits_only(section) || is_mark(section, '-') ||
           is_mark(section, ' ');
}

Section* phone_number_read(Section* section, Reading& reading) {
    reading.append("area code ");
    Section* last = section;
    for (int n = 1; n <= TELEPHONE_SECTIONS_MAX && section != nullptr;
         ++n, section = section->m_pnext) {
        if (section->m_nmark != NUMBERSYMBOL && section->m_nmark != MARKSYMBOL) break;
        last = section;
        if (section->m_nmark == MARKSYMBOL) continue;
        const std::string_view digits = section->sz_char;
        const int value = n == 1 ? value_of(section) : 0;
        if (value == 800 || value == 900) {
            reading.append(value == 800 ? "eight hundred " : "nine hundred ");
            reading.note_digits(digits);
        } else {
            append_each_digit(digits, reading);
            reading.append(" ");
        }
    }
    return last;
}

}  // namespace kavi::tn
