// Numbers with thousands separators, and ordinals with their suffix.

#include <cstring>

#include "../numbers/number_words.h"
#include "readers.h"
#include "tokens.h"

namespace kavi::tn {

namespace {

bool is_group(const Token* token) {
    return token->has_digits_only && token->length <= GROUP_DIGITS;
}

// The form of a number with separators: the number of groups after its first, and whether the last
// group is an ordinal.
struct NumberForm {
    std::size_t groups_after;
    bool ordinal;
};

// `number` is followed by ",". A token is looked at only when the one before it is a section.
NumberForm number_form(const Token* number) {
    if (!is_group(number + 2)) return {1, false};
    if (!is_mark(number + 3, ',')) return {1, is_ordinal_suffix(number + 3)};
    if (!is_group(number + 4)) return {2, false};
    if (is_mark(number + 5, ',')) return {3, false};
    return {2, is_ordinal_suffix(number + 5)};
}

// Appends the last group of a number with separators, which may be any token, and returns the last
// token consumed: the suffix of an ordinal, else the group.
const Token* read_last(const Token* last, bool ordinal, Reading& reading) {
    if (!last->has_digits_only) {
        if (!append_no_number(last, reading)) return last - 1;
    } else if (ordinal) {
        append_ordinal(last->text(), reading);
    } else {
        append_cardinal(last->text(), reading);
    }
    return ordinal ? last + 1 : last;
}

}  // namespace

bool append_no_number(const Token* token, Reading& reading) {
    const bool is_spoken = token->kind == STRINGSYMBOL || is_tag(token);
    return !is_spoken || reading.append_whole(token->text());
}

const Token* str_number(const Token* number, Reading& reading) {
    if (!is_mark(number + 1, ',')) {
        append_number(number->text(), reading);
        return number;
    }
    const NumberForm form = number_form(number);
    const Token* group = number;
    for (std::size_t n = form.groups_after; n > 0; --n) {
        append_cardinal(group->text(), reading);
        group += 2;
        if (form.groups_after == 1 && group->length != GROUP_DIGITS) {
            // Not a group of three: the number ends with the comma.
            return form.ordinal ? group : group - 1;
        }
        reading.append(scale_word(n));
    }
    return is_section(group) ? read_last(group, form.ordinal, reading) : group;
}

// In a queue of the host, the last group of the section becomes zeros, which hosts can see.
const Token* turn(const Token* number, Reading& reading) {
    append_ordinal_number(number->text(), reading);
    if (number->section != nullptr && number->length > GROUP_DIGITS) {
        std::memset(number->section->sz_char + number->length - GROUP_DIGITS, '0', GROUP_DIGITS);
    }
    return number + 1;
}

}  // namespace kavi::tn
