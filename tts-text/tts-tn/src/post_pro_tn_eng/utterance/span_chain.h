// The span chain: the open spans around a word, and the attributes that they give it.
#ifndef KAVI_TN_SPAN_CHAIN_H
#define KAVI_TN_SPAN_CHAIN_H

#include <cstddef>
#include <string_view>

#include "../common/limits.h"
#include "ShareObj.h"

namespace kavi::tn {

// The names and the values of nested spans: two lists, outermost span first, separated by tabs and
// of at most 199 characters each. The attributes are computed once for all words between two tags.
class SpanChain {
  public:
    // cppcheck-suppress uninitMemberVar ; texts are read up to their lengths only
    SpanChain() {}

    // Adds an innermost span, or several, as lists. False when a list has no room: the chain must
    // then not be used any more.
    bool enter(std::string_view name, std::string_view value);

    // Removes what the last enter added. There is one.
    void leave();

    bool is_open() const { return n_levels_ > 0; }

    // The attributes of the words inside. The first pair that cannot be applied, and all pairs
    // after it, are left out.
    const CssmlTag& markup();

  private:
    struct List {
        std::size_t length = 0;
        std::size_t applied = 0;  // the length of the part that is in markup_
        char text[SPAN_CHAIN_MAX];

        bool join(std::string_view field, bool after_others);
        std::string_view rest() const { return {text + applied, length - applied}; }
    };

    // The lengths of the lists before a span was entered.
    struct Level {
        unsigned char names;
        unsigned char values;
    };

    // By the shortest name of a span, "poem", and a tab: 41.
    static constexpr int LEVELS_MAX = (static_cast<int>(SPAN_CHAIN_MAX) + 1) / 5 + 1;

    List names_;
    List values_;
    int n_levels_ = 0;
    Level levels_[LEVELS_MAX];
    bool is_markup_known_ = false;
    bool is_markup_final_ = false;  // a pair cannot be applied: spans inside change nothing
    CssmlTag markup_;               // of the applied parts; entering a span adds to it
};

// Names and values that are to be applied.
struct AttributeLists {
    std::string_view names;
    std::string_view values;
    bool lacks_value = false;  // the last name applied had no value
};

// Sets the attributes that the lists give, pair by pair, and removes each pair from the lists.
// False at the first pair that cannot be applied, with those before it applied.
bool set_attributes(CssmlTag& tag, AttributeLists& lists);

}  // namespace kavi::tn

#endif  // KAVI_TN_SPAN_CHAIN_H
