// The spans that enclose a word, and the attributes that they give it.
#ifndef KAVI_TN_SPAN_CHAIN_H
#define KAVI_TN_SPAN_CHAIN_H

#include <string_view>

#include "../common/limits.h"
#include "ShareObj.h"

namespace kavi::tn {

// Names and values of nested spans, outermost first, each list joined by tabs and of at most 199
// characters.
class SpanChain {
  public:
    // A chain as a host gives it. False when one of the lists is too long.
    bool assign(const char* names, const char* values);

    // The chain `outer`, or none when that is null, with one more span inside. False when it has
    // no room.
    bool extend(const SpanChain* outer, std::string_view name, std::string_view value);

    // What all words inside have: what cannot be applied to one is left out of all.
    const CssmlTag& markup() const { return markup_; }

  private:
    static constexpr int SIZE = static_cast<int>(SPAN_CHAIN_MAX) + 1;

    void work_out_markup();

    char names_[SIZE] = {};
    char values_[SIZE] = {};
    CssmlTag markup_ = {};
};

// Sets the attributes that a chain gives. False at the first pair that cannot be applied, those
// before it applied.
bool set_attributes(CssmlTag& tag, std::string_view names, std::string_view values);

}  // namespace kavi::tn

#endif  // KAVI_TN_SPAN_CHAIN_H
