// Digit strings of any length, with scale words.

#include <cstring>

#include "../tokenize/section_queue.h"
#include "post_pro_tn_eng.h"

namespace kavi {

// Lays the digits out in groups of three with separators between them, just as a number written
// with thousands separators arrives, and lets the reader of those read it. It knows four groups;
// the digits behind them are not read. A group that the arena refuses is missing from the reading.
char* PostProTnEng::number_to_string(char* sz_source_text, char* sz_target_text) {
    constexpr int GROUPS_MAX = 4;
    tn::SectionQueue groups(_mem_handle);
    std::size_t left = std::strlen(sz_source_text);
    const char* digits = sz_source_text;
    for (int n = 0; n < GROUPS_MAX && left > 0; ++n) {
        if (n > 0) groups.append(",");
        const std::size_t length = left % 3 != 0 ? left % 3 : 3;
        groups.append({digits, length});
        digits += length;
        left -= length;
    }
    sz_target_text[0] = '\0';
    if (groups.head != nullptr) str_number(groups.head, sz_target_text);
    return sz_target_text;
}

}  // namespace kavi
