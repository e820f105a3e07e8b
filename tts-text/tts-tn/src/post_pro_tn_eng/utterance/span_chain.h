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
        std::size_t applied = 0;  // so much of it has gone into the markup
        char text[SPAN_CHAIN_MAX];

        bool join(std::string_view field, bool after_others);
        std::string_view rest() const { return {text + applied, length - applied}; }
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
    bool is_markup_final_ = false;  // a pair cannot be applied: no span inside changes anything
    CssmlTag markup_;               // goes on from what has been applied when a span is entered
};

// Names and values that are still to be applied.
struct AttributeLists {
    std::string_view names;
    std::string_view values;
    bool lacks_value = false;  // there were fewer values than names
};

// Sets the attributes that the lists give, and takes them off. False at the first pair that cannot
// be applied, those before it applied.
bool set_attributes(CssmlTag& tag, AttributeLists& lists);

}  // namespace kavi::tn

#endif  // KAVI_TN_SPAN_CHAIN_H
