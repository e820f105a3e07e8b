// Numbers with thousands separators, and ordinals with their suffix.

#include <cassert>
#include <cstring>

#include "../markup/markup_tags.h"
#include "../numbers/number_words.h"
#include "readers.h"
#include "sections.h"

namespace kavi::tn {

namespace {

bool is_group(const Section* section) {
    return has_digits_only(section) && std::strlen(section->sz_char) <= GROUP_DIGITS;
}

// How a number with separators is to be read: with so many groups after its first, and whether its
// last group is an ordinal.
struct NumberForm {
    std::size_t groups_after;
    bool ordinal;
};

NumberForm number_form(Section* number) {
    if (!is_group(ahead(number, 2))) return {1, false};
    if (!is_mark(ahead(number, 3), ',')) return {1, is_ordinal_suffix(ahead(number, 3))};
    if (!is_group(ahead(number, 4))) return {2, false};
    if (is_mark(ahead(number, 5), ',')) return {3, false};
    return {2, is_ordinal_suffix(ahead(number, 5))};
}

// The last section of a number with separators, with mark and suffix when it is an ordinal. It
// need not be a number.
Section* read_last(Section* last, bool ordinal, Reading& reading) {
    if (!is_number(last)) {
        if (!append_no_number(last, reading)) return last->m_pprevious;
    } else if (ordinal) {
        append_ordinal(last->sz_char, reading);
    } else {
        append_cardinal(last->sz_char, reading);
    }
    return ordinal ? last->m_pnext : last;
}

}  // namespace

bool append_no_number(const Section* section, Reading& reading) {
    const bool is_spoken =
        section->m_nmark == STRINGSYMBOL || begins_sentence_tag(section->sz_char);
    return !is_spoken || reading.append_whole(section->sz_char);
}

Section* str_number(Section* number, Reading& reading) {
    if (!is_mark(number->m_pnext, ',')) {
        append_number(number->sz_char, reading);
        return number;
    }
    const NumberForm form = number_form(number);
    Section* group = number;
    for (std::size_t n = form.groups_after; n > 0; --n) {
        assert(group != nullptr);  // number_form has seen it
        append_cardinal(group->sz_char, reading);
        Section* next_group = ahead(group, 2);
        const bool is_whole =
            next_group != nullptr && std::strlen(next_group->sz_char) == GROUP_DIGITS;
        if (form.groups_after == 1 && !is_whole) {
            // No group of thousands: the number ends with its comma.
            return form.ordinal ? next_group : group->m_pnext;
        }
        reading.append(scale_word(n));
        group = next_group;
    }
    return group != nullptr ? read_last(group, form.ordinal, reading) : nullptr;
}

// The section keeps zeros in the place of its last group, as hosts know it.
Section* turn(Section* number, Reading& reading) {
    const std::size_t length = std::strlen(number->sz_char);
    append_ordinal_number({number->sz_char, length}, reading);
    if (length > GROUP_DIGITS) {
        std::memset(number->sz_char + length - GROUP_DIGITS, '0', GROUP_DIGITS);
    }
    return number->m_pnext;
}

}  // namespace kavi::tn
