// Entering and leaving spans, and applying their attributes.

#include "span_chain.h"

#include <cassert>

namespace kavi::tn {

bool SpanChain::List::join(std::string_view field, bool after_others) {
    if (field.size() + (after_others ? 1 : 0) > sizeof text - length) return false;
    if (after_others) text[length++] = '\t';
    length += field.copy(text + length, field.size());
    return true;
}

bool SpanChain::enter(std::string_view name, std::string_view value) {
    assert(n_levels_ < LEVELS_MAX);
    levels_[n_levels_] = {static_cast<unsigned char>(names_.length),
                          static_cast<unsigned char>(values_.length)};
    const bool inside = is_open();
    if (!names_.join(name, inside) || !values_.join(value, inside)) return false;
    ++n_levels_;
    is_markup_known_ = is_markup_final_;
    return true;
}

void SpanChain::leave() {
    --n_levels_;
    names_.length = levels_[n_levels_].names;
    values_.length = levels_[n_levels_].values;
    is_markup_known_ = is_markup_final_ = false;
    names_.applied = 0;
}

const CssmlTag& SpanChain::markup() {
    if (is_markup_known_) return markup_;
    if (names_.applied == 0) {
        markup_ = {};
        values_.applied = 0;
    }
    AttributeLists lists = {names_.rest(), values_.rest()};
    is_markup_final_ = !set_attributes(markup_, lists);
    is_markup_known_ = true;
    // The value of the next span may become that of a name without one: then all is applied again.
    names_.applied = lists.lacks_value ? 0 : names_.length;
    values_.applied = values_.length - lists.values.size();
    return markup_;
}

}  // namespace kavi::tn
