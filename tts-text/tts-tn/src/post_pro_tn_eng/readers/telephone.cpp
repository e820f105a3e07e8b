// Telephone numbers: "area code ", then group by group, digit by digit.

#include "parts.h"

namespace kavi {

using namespace tn;

int PostProTnEng::phone_number_decide(Section* p_section) {
    if (p_section == nullptr) return 0;
    const bool begins = is_mark(p_section, '(') || number_def(p_section->sz_char) == 1 ||
                        is_mark(p_section, '-') || is_mark(p_section, ' ');
    return begins ? 1 : 0;
}

Section* PostProTnEng::phone_number_read(Section* p_section, char* sz_target_text) {
    constexpr int SECTIONS_MAX = 9;
    Scratch scratch(_mem_handle);
    if (!scratch) return p_section;
    Reading reading(sz_target_text);
    reading.append("area code ");

    Section* last = p_section;
    Section* section = p_section;
    for (int n = 1; n <= SECTIONS_MAX && section != nullptr; ++n, section = section->m_pnext) {
        if (section->m_nmark != NUMBERSYMBOL && section->m_nmark != MARKSYMBOL) break;
        last = section;
        if (section->m_nmark == MARKSYMBOL) continue;
        const long value = n == 1 ? value_of(section->sz_char) : 0;
        if (value == 800) {
            reading.append("eight hundred ");
        } else if (value == 900) {
            reading.append("nine hundred ");
        } else {
            number_to_normal(section->sz_char, scratch.text());
            reading.take(scratch);
            reading.append(" ");
        }
    }
    return last;
}

}  // namespace kavi
