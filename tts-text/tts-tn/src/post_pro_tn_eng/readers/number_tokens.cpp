// Numbers with thousands separators, ordinals with their suffix, words in capital letters.

#include <cstring>
#include <string_view>

#include "../common/ascii.h"
#include "EngLexicon.h"
#include "parts.h"

namespace kavi {

using namespace tn;

namespace {

bool is_group(const Section* section) {
    return section != nullptr && is_digits(section->sz_char) && std::strlen(section->sz_char) < 4;
}

constexpr std::string_view SCALES[] = {" thousand ", " million ", " billion "};

// How a number with separators is to be read: with `scales` scale words, and whether its last
// group is an ordinal.
struct NumberForm {
    int scales;
    bool ordinal;
};

NumberForm number_form(Section* number) {
    if (!is_group(ahead(number, 2))) return {1, false};
    if (!is_mark(ahead(number, 3), ',')) return {1, is_ordinal_suffix(ahead(number, 3))};
    if (!is_group(ahead(number, 4))) return {2, false};
    if (is_mark(ahead(number, 5), ',')) return {3, false};
    return {2, is_ordinal_suffix(ahead(number, 5))};
}

}  // namespace

Section* PostProTnEng::str_number(Section* p_section, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return p_section;
    Reading reading(sz_target_text);
    if (!is_mark(p_section->m_pnext, ',')) {
        if (std::strlen(p_section->sz_char) < 4) {
            number_read(p_section->sz_char, scratch.text());
        } else {
            number_to_string(p_section->sz_char, scratch.text());
        }
        reading.take(scratch);
        return p_section;
    }

    const NumberForm form = number_form(p_section);
    Section* group = p_section;
    for (int scale = form.scales; scale > 0; --scale) {
        number_read(group->sz_char, scratch.text());
        reading.take(scratch);
        Section* next_group = ahead(group, 2);
        if (form.scales == 1 && (next_group == nullptr || std::strlen(next_group->sz_char) != 3)) {
            group = group->m_pnext;  // no group of thousands: the number ends with its comma
        } else {
            reading.append(SCALES[scale - 1]);
            group = next_group;
        }
    }
    if (group == nullptr) return nullptr;
    if (!is_number(group)) {
        append_no_number(group, reading);
    } else if (form.ordinal) {
        str_turn(group->sz_char, scratch.text());
    } else {
        number_read(group->sz_char, scratch.text());
    }
    reading.take(scratch);
    return form.ordinal ? group->m_pnext : group;
}

Section* PostProTnEng::turn(Section* p_section, char* sz_target_text) {
    Scratch scratch(_mem_handle);
    if (!scratch) return p_section;
    Reading reading(sz_target_text);
    const std::size_t n_length = std::strlen(p_section->sz_char);
    char* last_group = p_section->sz_char + (n_length < 4 ? 0 : n_length - 3);
    char c_temp[4] = {};
    std::memcpy(c_temp, last_group, n_length < 4 ? n_length : 3);
    if (n_length >= 4) {
        constexpr std::string_view SCALE = SCALES[0];
        std::memset(last_group, '0', 3);
        number_to_string(p_section->sz_char, scratch.text());
        // What stands behind the last scale word is the reading of the zeros.
        const std::string_view leading = scratch.text();
        const std::size_t scale = leading.rfind(SCALE);
        if (scale != std::string_view::npos)
            reading.append(leading.substr(0, scale + SCALE.size()));
        scratch.clear();
    }
    str_turn(c_temp, scratch.text());
    reading.take(scratch);
    return p_section->m_pnext;
}

// The lexicon is asked about a word in capitals, but as yet its answer makes no difference: the
// word is written unchanged, known or not.
int PostProTnEng::process_upper_case(Section* m_ptemp_section, char* sz_target) {
    const char* word = m_ptemp_section->sz_char;
    std::size_t n_length = 0;
    while (is_upper(word[n_length])) ++n_length;
    if (word[n_length] != '\0') return 0;
    Scratch sz_desc(_mem_handle, n_length + 2, n_length + 2);
    if (sz_desc) {
        for (std::size_t i = 0; i < n_length; ++i) sz_desc.text()[i] = to_lower(word[i]);
        sz_desc.text()[n_length] = '\0';
        char sz_phone[256] = {};
        static_cast<void>(eng_lexicon_lookup(sz_desc.text(), sz_phone, sizeof sz_phone));
    }
    std::memcpy(sz_target, word, n_length + 1);
    return 1;
}

}  // namespace kavi
