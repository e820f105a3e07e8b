// Finding the abbreviation that a full stop ends.
#ifndef KAVI_TN_ABBREVIATION_H
#define KAVI_TN_ABBREVIATION_H

#include <array>
#include <cstddef>
#include <optional>

#include "../common/forward_finder.h"
#include "post_pro_tn_eng.h"

namespace kavi::tn {

constexpr int NO_ABBREVIATION = -1;

// The offset of the first "." in the abbreviation of a row.
std::size_t dot_offset(int row);

// The searches of one scan of one source text. It remembers where each case form occurs next: even
// a text full of near misses is searched once for each form.
class AbbreviationSearch {
  public:
    AbbreviationSearch() {}  // not defaulted: that would clear the finders, which few texts need

    // The row of the abbreviation whose first "." is at `dot`, or NO_ABBREVIATION. The search
    // begins at `stretch`: the start of the sentence, or the position after the last abbreviation
    // or decimal point. `dot` is the first "." of the stretch. No call has a stretch that begins
    // before that of an earlier call.
    int find(const char* stretch, const char* dot);

  private:
    // Whether a row that passes the cheap tests is the abbreviation.
    bool is_accepted(int row, const char* stretch, const char* dot);

    static constexpr std::size_t CASE_FORMS = 4;  // as written, lower case, capitalised, capitals
    using Finders = std::array<ForwardFinder, ABBREVIATIONNUMBER * CASE_FORMS>;
    std::optional<Finders> ahead_;  // from the first search on; few texts need one
};

}  // namespace kavi::tn

#endif  // KAVI_TN_ABBREVIATION_H
