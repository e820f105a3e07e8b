// The spans that enclose a word, and the attributes that they give it.
#ifndef KAVI_TN_SPAN_CHAIN_H
#define KAVI_TN_SPAN_CHAIN_H

#include <cstddef>
#include <string_view>

#include "../common/limits.h"
#include "ShareObj.h"

namespace kavi::tn {

// Names and values of nested spans, outermost first, each list joined by tabs and of at most 199
// characters.
class SpanChain {
  public:
    // cppcheck-suppress uninitMemberVar ; the lists are as long as they say
    SpanChain() {}

    // Adds a span inside the others, or a chain of such as a host gives it. False when there is no
    // room for it; the chain is then of no use any more.
    bool enter(std::string_view name, std::string_view value);

    // Removes the innermost.
    void leave();

    bool is_open() const { return n_levels_ > 0; }

    // What all words inside have: what cannot be applied to one is left out of all.
    const CssmlTag& markup();

  private:
    struct List {
        std::size_t length = 0;
        char text[SPAN_CHAIN_MAX];

        bool join(std::string_view field, bool after_others);
        std::string_view view() const { return {text, length}; }
    };

    // The lengths of the lists without a span.
    struct Level {
        unsigned char names;
        unsigned char values;
    };

    // The shortest name of a span, "poem", and a tab.
    static constexpr int LEVELS_MAX = (static_cast<int>(SPAN_CHAIN_MAX) + 1) / 5 + 1;

    List names_;
    List values_;
    int n_levels_ = 0;
    Level levels_[LEVELS_MAX];
    bool is_markup_known_ = false;
    CssmlTag markup_;
};

// Sets the attributes that a chain gives. False at the first pair that cannot be applied, those
// before it applied.
bool set_attributes(CssmlTag& tag, std::string_view names, std::string_view values);

}  // namespace kavi::tn

#endif  // KAVI_TN_SPAN_CHAIN_H
